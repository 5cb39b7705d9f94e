#include "SystemTexts.h"

#include "Device.h"
#include "texts/LanguageNames.h"

#include <algorithm>
#include <array>

namespace {

struct Text {
    std::string_view english;
    std::string_view german;
};

constexpr std::array texts{
    Text{"%@ byte", "%@ Byte"},
    Text{"%@ bytes", "%@ Byte"},
    Text{"%@ Documents", "%@ Dokumente"},
    Text{"Back", "Zurück"},
    Text{"Browse This Computer…", "Diesen Computer durchsuchen …"},
    Text{"Cancel", "Abbrechen"},
    Text{"Close", "Schließen"},
    Text{"Copy", "Kopieren"},
    Text{"Done", "Fertig"},
    Text{"More Info", "Weitere Infos"},
    Text{"No application opened it.", "Kein Programm hat sie geöffnet."},
    Text{"One file is wanted.", "Es wird eine Datei gebraucht."},
    Text{"One folder is wanted.", "Es wird ein Ordner gebraucht."},
    Text{"Open With…", "Öffnen mit …"},
    Text{"Save to Folder…", "In Ordner sichern …"},
    Text{"The File Cannot Be Opened", "Die Datei kann nicht geöffnet werden"},
    Text{"The File Could Not Be Shared", "Die Datei konnte nicht geteilt werden"},
    Text{"This folder is empty.", "Dieser Ordner ist leer."},
    Text{"“%@” could not be opened: %@.", "„%@“ konnte nicht geöffnet werden: %@."},
    Text{"“%@” is not of a kind that can be chosen.", "Dateien wie „%@“ können nicht gewählt werden."},
};

} // namespace

std::string systemText(std::string_view english) {
    const auto languages = languageNames(Device::current().locale());
    const auto isGerman = std::ranges::find(languages, "de") != languages.end();
    const auto* const text = std::ranges::find(texts, english, &Text::english);
    return std::string(isGerman && text != texts.end() ? text->german : english);
}
