#include "cells/RowsFixture.h"

#include "RectGeometry.h"

#include <algorithm>

std::optional<PropertyList> RowsFixture::written(const std::string& key) {
    const auto path = "/var/mobile/Library/Preferences/" + std::string(domain) + ".plist";
    const auto kept = dictionaryWithContentsOfFile(path).value_or(PropertyList::Dictionary());
    const auto found = kept.find(key);
    return found != kept.end() ? std::optional(found->second) : std::nullopt;
}

std::vector<std::string> RowsFixture::elementsOf(const std::string& id) const {
    std::vector<std::string> told;
    for (const auto& element : AccessibilityElement::allIn(cell(id)))
        told.push_back(element.label + "=" + element.value);
    return told;
}

std::vector<AccessibilityRole> RowsFixture::rolesOf(const std::string& id) const {
    std::vector<AccessibilityRole> roles;
    for (const auto& element : AccessibilityElement::allIn(cell(id)))
        roles.push_back(element.role);
    return roles;
}

std::vector<std::string> RowsFixture::namesOnSheet() {
    layOut();
    std::vector<std::string> names;
    for (const auto& element : AccessibilityElement::allIn(sheet()->shownView()))
        names.push_back(element.label);
    return names;
}

AccessibilityElement RowsFixture::elementOnSheet(const std::string& label) {
    layOut();
    const auto elements = AccessibilityElement::allIn(sheet()->shownView());
    const auto found = std::ranges::find(elements, label, &AccessibilityElement::label);
    if (found == elements.end())
        throw std::runtime_error("there is nothing on the sheet called " + label);
    return *found;
}

CGPoint RowsFixture::middleOf(const UIView& view) {
    const auto frame = screenFrame(view);
    return {CGRectGetMidX(frame), CGRectGetMidY(frame)};
}

std::string RowsFixture::texts(const std::string& key, const std::vector<std::string>& texts) {
    std::string xml;
    for (const auto& text : texts)
        xml += "<string>" + text + "</string>";
    return list(key, xml);
}

std::string RowsFixture::list(const std::string& key, const std::string& xml) {
    return value(key, "<array>" + xml + "</array>");
}
