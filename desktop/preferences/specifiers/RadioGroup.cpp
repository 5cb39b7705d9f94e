#include "specifiers/RadioGroup.h"

#include "specifiers/SpecifierChoices.h"

bool isChoice(const DesktopSpecifier& row) {
    const auto group = row.group();
    return row.kind() == SpecifierKind::ListItem && group && group->boolForKey("isRadioGroup", false);
}

bool isChosen(DesktopSpecifier& row) {
    if (!isChoice(row))
        return false;
    const auto group = row.group();
    if (!group->keepsValue())
        return group->lastChosen().get() == &row;
    const auto value = row.propertyForKey("value");
    const auto chosen = group->performGetter();
    return value && chosen && isSameValue(*value, *chosen);
}

void choose(DesktopSpecifier& row) {
    const auto group = row.group();
    if (group->keepsValue())
        group->performSetter(row.propertyForKey("value"));
    else
        group->setLastChosen(row);
}
