#include "PreferenceStore.h"

#include "PreferenceKeys.h"

#include <utility>

Ref<NSUserDefaults> PreferenceStore::open() {
    return NSUserDefaults::initWithSuiteName(preferenceSuiteName);
}

PropertyList::Dictionary PreferenceStore::catalogueValues(const NSUserDefaults& preferences) {
    PropertyList::Dictionary values;
    for (const auto key : PreferenceKeyCatalogue) {
        if (auto value = preferences.objectForKey(key))
            values.emplace(key, *std::move(value));
    }
    return values;
}

void PreferenceStore::replaceAll(NSUserDefaults& preferences, const PropertyList::Dictionary& values) {
    preferences.removePersistentDomainForName(preferenceSuiteName);
    for (const auto& [key, value] : values)
        preferences.setObject(value, key);
    preferences.synchronize();
}

void PreferenceStore::removeAll(NSUserDefaults& preferences) {
    for (const auto& [key, value] : preferences.dictionaryRepresentation())
        preferences.removeObjectForKey(key);
    preferences.synchronize();
}
