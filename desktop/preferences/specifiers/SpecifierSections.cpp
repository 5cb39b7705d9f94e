#include "specifiers/SpecifierSections.h"

std::vector<SpecifierSection> sectionsOf(const std::vector<Ref<PSSpecifier>>& specifiers) {
    std::vector<SpecifierSection> sections;
    for (const auto& entry : specifiers) {
        const auto specifier = dynamicCast<DesktopSpecifier>(entry);
        if (!specifier)
            continue;
        if (specifier->kind() == SpecifierKind::Group) {
            sections.push_back({specifier, {}});
            continue;
        }
        if (sections.empty())
            sections.emplace_back();
        specifier->setGroup(sections.back().group);
        sections.back().rows.push_back(specifier);
    }
    return sections;
}
