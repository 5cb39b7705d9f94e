#include "SystemTexts.h"

#include "Device.h"
#include "texts/LanguageNames.h"

#include <algorithm>
#include <array>

namespace {

/// What is empty is told in English.
struct Text {
    std::string_view english;
    std::string_view german;
    std::string_view arabic;
    std::string_view hebrew;
};

constexpr std::array texts{
    Text{"%@ byte", "%@ Byte", "%@ بايت", ""},
    Text{"%@ bytes", "%@ Byte", "%@ بايت", ""},
    Text{"%@ Documents", "%@ Dokumente", "", ""},
    Text{"About", "Info", "حول", "אודות"},
    Text{"Appearance", "Erscheinungsbild", "المظهر", "מראה"},
    Text{"Back", "Zurück", "رجوع", "חזרה"},
    Text{"Browse This Computer…", "Diesen Computer durchsuchen …", "تصفح هذا الكمبيوتر…", "עיון במחשב זה…"},
    Text{"Cancel", "Abbrechen", "إلغاء", "ביטול"},
    Text{"Cannot Open “%@”", "„%@“ kann nicht geöffnet werden", "لا يمكن فتح «%@»", "לא ניתן לפתוח את ”%@“"},
    Text{"Close", "Schließen", "إغلاق", "סגירה"},
    Text{"Copy", "Kopieren", "نسخ", "העתקה"},
    Text{"Dark", "Dunkel", "داكن", "כהה"},
    Text{"Device", "Gerät", "الجهاز", "מכשיר"},
    Text{"Done", "Fertig", "تم", "סיום"},
    Text{"Language", "Sprache", "اللغة", "שפה"},
    Text{"Light", "Hell", "فاتح", "בהיר"},
    Text{"More Info", "Weitere Infos", "مزيد من المعلومات", "מידע נוסף"},
    Text{"No application opened it.", "Kein Programm hat sie geöffnet.", "لم يفتحه أي تطبيق.", ""},
    Text{"One file is wanted.", "Es wird eine Datei gebraucht.", "مطلوب ملف واحد.", "נדרש קובץ אחד."},
    Text{"One folder is wanted.", "Es wird ein Ordner gebraucht.", "مطلوب مجلد واحد.", "נדרשת תיקייה אחת."},
    Text{"Open With…", "Öffnen mit …", "فتح باستخدام…", "פתיחה באמצעות…"},
    Text{"Phone on a desktop", "Telefon auf einem Desktop", "", ""},
    Text{"Save to Folder…", "In Ordner sichern …", "حفظ في مجلد…", "שמירה בתיקייה…"},
    Text{"Screen", "Bildschirm", "الشاشة", "מסך"},
    Text{"Settings", "Einstellungen", "الإعدادات", "הגדרות"},
    Text{"Tablet on a desktop", "Tablet auf einem Desktop", "", ""},
    Text{"The File Cannot Be Opened", "Die Datei kann nicht geöffnet werden", "لا يمكن فتح الملف",
         "לא ניתן לפתוח את הקובץ"},
    Text{"The File Could Not Be Shared", "Die Datei konnte nicht geteilt werden", "تعذرت مشاركة الملف",
         "לא ניתן היה לשתף את הקובץ"},
    Text{"This folder is empty.", "Dieser Ordner ist leer.", "هذا المجلد فارغ.", "התיקייה ריקה."},
    Text{"Time Zone", "Zeitzone", "المنطقة الزمنية", "אזור זמן"},
    Text{"“%@” could not be opened: %@.", "„%@“ konnte nicht geöffnet werden: %@.", "تعذر فتح «%@»: %@.", ""},
    Text{"“%@” is not of a kind that can be chosen.", "Dateien wie „%@“ können nicht gewählt werden.", "",
         ""},
};

struct Language {
    std::string_view name;
    std::string_view Text::* text;
};

constexpr std::array languages{Language{"de", &Text::german}, Language{"ar", &Text::arabic},
                               Language{"he", &Text::hebrew}};

} // namespace

std::string systemText(std::string_view english) {
    const auto names = languageNames(Device::current().locale());
    const auto* const text = std::ranges::find(texts, english, &Text::english);
    const auto* const language = std::ranges::find_if(
        languages, [&names](std::string_view name) { return std::ranges::find(names, name) != names.end(); },
        &Language::name);
    const auto isKnown = text != texts.end() && language != languages.end();
    return std::string(isKnown && !(text->*language->text).empty() ? text->*language->text : english);
}
