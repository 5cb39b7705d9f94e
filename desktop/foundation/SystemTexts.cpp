#include "SystemTexts.h"

#include "Device.h"
#include "Foundation/Format.h"
#include "texts/LanguageNames.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <span>
#include <string>

namespace {

/// What is empty is told in English.
struct Text {
    std::string_view english;
    std::string_view german;
    std::string_view arabic;
    std::string_view hebrew;
};

constexpr std::array texts{
    Text{"%@ byte", "%@ Byte", "%@ بايت", "%@ בית"},
    Text{"%@ bytes", "%@ Byte", "%@ بايت", "%@ בתים"},
    Text{"%@ cannot be loaded: %@.", "%@ kann nicht geladen werden: %@.",
         "لا يمكن تحميل \u2068%@\u2069: \u2068%@\u2069.", "לא ניתן לטעון את \u2068%@\u2069: \u2068%@\u2069."},
    Text{"%@ cannot be read: %@.", "%@ kann nicht gelesen werden: %@.",
         "لا يمكن قراءة \u2068%@\u2069: \u2068%@\u2069.", "לא ניתן לקרוא את \u2068%@\u2069: \u2068%@\u2069."},
    Text{"%@ Documents", "%@ Dokumente", "المستندات: %@", "%@ מסמכים"},
    Text{"%@ is cut short.", "%@ ist nicht vollständig.", "\u2068%@\u2069 غير مكتمل.",
         "\u2068%@\u2069 אינו שלם."},
    Text{"%@ is damaged.", "%@ ist beschädigt.", "\u2068%@\u2069 تالف.", "\u2068%@\u2069 פגום."},
    Text{"%@ is damaged: it is no property list.", "%@ ist beschädigt: Es ist keine Property-Liste.", "", ""},
    Text{"%@ is empty.", "%@ ist leer.", "\u2068%@\u2069 فارغ.", "\u2068%@\u2069 ריק."},
    Text{"%@ is made for another kind of processor.", "%@ ist für eine andere Art von Prozessor gemacht.",
         "\u2068%@\u2069 مخصص لنوع آخر من المعالجات.", "\u2068%@\u2069 מיועד לסוג אחר של מעבד."},
    Text{"%@ is no library.", "%@ ist keine Bibliothek.", "\u2068%@\u2069 ليس مكتبة.",
         "\u2068%@\u2069 אינו ספרייה."},
    Text{"%@ names no code.", "%@ nennt keinen Code.", "", ""},
    Text{"%@ names no principal class.", "%@ nennt keine Hauptklasse.", "", ""},
    Text{"A page of its class “%@” cannot be made.",
         "Eine Seite seiner Klasse „%@“ kann nicht erzeugt werden.", "", ""},
    Text{"About", "Info", "حول", "אודות"},
    Text{"Appearance", "Erscheinungsbild", "المظهر", "מראה"},
    Text{"Back", "Zurück", "رجوع", "חזרה"},
    Text{"Blue", "Blau", "أزرق", "כחול"},
    Text{"Browse This Computer…", "Diesen Computer durchsuchen …", "تصفح هذا الكمبيوتر…", "עיון במחשב זה…"},
    Text{"Cancel", "Abbrechen", "إلغاء", "ביטול"},
    Text{"Cannot Open “%@”", "„%@“ kann nicht geöffnet werden", "لا يمكن فتح «%@»", "לא ניתן לפתוח את ”%@“"},
    Text{"Close", "Schließen", "إغلاق", "סגירה"},
    Text{"Colors", "Farben", "الألوان", "צבעים"},
    Text{"Copy", "Kopieren", "نسخ", "העתקה"},
    Text{"Dark", "Dunkel", "داكن", "כהה"},
    Text{"Device", "Gerät", "الجهاز", "מכשיר"},
    Text{"Documents", "Dokumente", "المستندات", "מסמכים"},
    Text{"Done", "Fertig", "تم", "סיום"},
    Text{"Drop a PNG, JPEG or HEIC file on the window, or type its path.",
         "Lege eine PNG-, JPEG- oder HEIC-Datei auf dem Fenster ab oder gib ihren Pfad ein.",
         "أفلت ملف PNG أو JPEG أو HEIC على النافذة، أو اكتب مساره.",
         "יש לגרור קובץ PNG, JPEG או HEIC אל החלון, או להקליד את הנתיב שלו."},
    Text{"File exists", "Die Datei gibt es schon", "الملف موجود بالفعل", "הקובץ כבר קיים"},
    Text{"File name too long", "Der Dateiname ist zu lang", "اسم الملف طويل جدًا", "שם הקובץ ארוך מדי"},
    Text{"Green", "Grün", "أخضر", "ירוק"},
    Text{"Grid", "Raster", "شبكة", "רשת"},
    Text{"Hex Color", "Farbe in Hex", "لون سداسي عشري", "צבע הקסדצימלי"},
    Text{"image", "Bild", "صورة", "תמונה"},
    Text{"Image", "Bild", "صورة", "תמונה"},
    Text{"Input/output error", "Ein-/Ausgabefehler", "خطأ في الإدخال أو الإخراج", "שגיאת קלט/פלט"},
    Text{"Invalid argument", "Ungültiges Argument", "وسيطة غير صالحة", "ארגומנט לא חוקי"},
    Text{"Is a directory", "Es ist ein Ordner", "إنه مجلد", "זו תיקייה"},
    Text{"Its class “%@” is no page.", "Seine Klasse „%@“ ist keine Seite.", "", ""},
    Text{"Language", "Sprache", "اللغة", "שפה"},
    Text{"Light", "Hell", "فاتح", "בהיר"},
    Text{"More Info", "Weitere Infos", "مزيد من المعلومات", "מידע נוסף"},
    Text{"No application opened it.", "Kein Programm hat sie geöffnet.", "لم يفتحه أي تطبيق.",
         "אף יישום לא פתח אותו."},
    Text{"No class in it is called “%@”.", "Keine Klasse darin heißt „%@“.", "", ""},
    Text{"no image", "kein Bild", "لا توجد صورة", "אין תמונה"},
    Text{"No space left on device", "Kein Speicherplatz mehr frei", "لا توجد مساحة كافية", "אין די מקום"},
    Text{"No such file or directory", "Datei oder Ordner nicht gefunden", "لا يوجد ملف أو مجلد بهذا الاسم",
         "אין קובץ או תיקייה כזו"},
    Text{"nothing defines “%@”", "„%@“ ist nirgends definiert", "", ""},
    Text{"OK", "OK", "موافق", "אישור"},
    Text{"One file is wanted.", "Es wird eine Datei gebraucht.", "مطلوب ملف واحد.", "נדרש קובץ אחד."},
    Text{"One folder is wanted.", "Es wird ein Ordner gebraucht.", "مطلوب مجلد واحد.", "נדרשת תיקייה אחת."},
    Text{"One image is wanted.", "Es wird ein Bild gebraucht.", "مطلوب صورة واحدة.", "נדרשת תמונה אחת."},
    Text{"Opacity", "Deckkraft", "العتامة", "אטימות"},
    Text{"Open With…", "Öffnen mit …", "فتح باستخدام…", "פתיחה באמצעות…"},
    Text{"Path of a File", "Pfad einer Datei", "مسار ملف", "נתיב של קובץ"},
    Text{"Permission denied", "Keine Berechtigung", "الإذن مرفوض", "ההרשאה נדחתה"},
    Text{"Phone on a desktop", "Telefon auf einem Desktop", "هاتف على سطح المكتب", "טלפון על שולחן העבודה"},
    Text{"Read-only file system", "Das Dateisystem kann nur gelesen werden", "نظام الملفات للقراءة فقط",
         "מערכת הקבצים לקריאה בלבד"},
    Text{"Red", "Rot", "أحمر", "אדום"},
    Text{"Remove Image", "Bild entfernen", "إزالة الصورة", "הסרת התמונה"},
    Text{"Save to Folder…", "In Ordner sichern …", "حفظ في مجلد…", "שמירה בתיקייה…"},
    Text{"Screen", "Bildschirm", "الشاشة", "מסך"},
    Text{"Settings", "Einstellungen", "الإعدادات", "הגדרות"},
    Text{"Tablet on a desktop", "Tablet auf einem Desktop", "جهاز لوحي على سطح المكتب",
         "טאבלט על שולחן העבודה"},
    Text{"The File Cannot Be Opened", "Die Datei kann nicht geöffnet werden", "لا يمكن فتح الملف",
         "לא ניתן לפתוח את הקובץ"},
    Text{"The file could not be opened.", "Die Datei konnte nicht geöffnet werden.", "تعذر فتح الملف.",
         "לא ניתן היה לפתוח את הקובץ."},
    Text{"The File Could Not Be Shared", "Die Datei konnte nicht geteilt werden", "تعذرت مشاركة الملف",
         "לא ניתן היה לשתף את הקובץ"},
    Text{"The file is no image that can be used. Choose a PNG, JPEG or HEIC file.",
         "Die Datei ist kein Bild, das verwendet werden kann. Wähle eine PNG-, JPEG- oder HEIC-Datei.",
         "الملف ليس صورة يمكن استخدامها. اختر ملف PNG أو JPEG أو HEIC.",
         "הקובץ אינו תמונה שניתן להשתמש בה. יש לבחור קובץ PNG, JPEG או HEIC."},
    Text{"The file is too large.", "Die Datei ist zu groß.", "الملف كبير جدًا.", "הקובץ גדול מדי."},
    Text{"The file “{x}” couldn’t be saved in the folder “{y}” because a file with the same name already "
         "exists.",
         "Die Datei „{x}“ konnte nicht im Ordner „{y}“ gesichert werden, da es dort eine mit diesem Namen "
         "gibt.",
         "تعذر حفظ الملف «{x}» في المجلد «{y}» لوجود ملف بالاسم نفسه.",
         "לא ניתן היה לשמור את הקובץ ”{x}“ בתיקייה ”{y}“ משום שכבר קיים קובץ באותו שם."},
    Text{"The file “{x}” couldn’t be saved in the folder “{y}” because the volume is read only.",
         "Die Datei „{x}“ konnte nicht im Ordner „{y}“ gesichert werden, da das Volume nur gelesen werden "
         "kann.",
         "تعذر حفظ الملف «{x}» في المجلد «{y}» لأن وحدة التخزين للقراءة فقط.",
         "לא ניתן היה לשמור את הקובץ ”{x}“ בתיקייה ”{y}“ משום שהכונן לקריאה בלבד."},
    Text{"The file “{x}” couldn’t be saved in the folder “{y}” because there isn’t enough space.",
         "Die Datei „{x}“ konnte nicht im Ordner „{y}“ gesichert werden, da zu wenig Speicherplatz frei ist.",
         "تعذر حفظ الملف «{x}» في المجلد «{y}» لعدم وجود مساحة كافية.",
         "לא ניתן היה לשמור את הקובץ ”{x}“ בתיקייה ”{y}“ משום שאין די מקום."},
    Text{"The file “{x}” couldn’t be saved in the folder “{y}”.",
         "Die Datei „{x}“ konnte nicht im Ordner „{y}“ gesichert werden.",
         "تعذر حفظ الملف «{x}» في المجلد «{y}».", "לא ניתן היה לשמור את הקובץ ”{x}“ בתיקייה ”{y}“."},
    Text{"The Image Cannot Be Used", "Das Bild kann nicht verwendet werden", "لا يمكن استخدام الصورة",
         "לא ניתן להשתמש בתמונה"},
    Text{"The image could not be saved.", "Das Bild konnte nicht gesichert werden.", "تعذر حفظ الصورة.",
         "לא ניתן היה לשמור את התמונה."},
    Text{"The row names no place for an image.", "Die Zeile nennt keinen Ort für ein Bild.",
         "لا يحدد الصف مكانًا لصورة.", "השורה אינה מציינת מקום לתמונה."},
    Text{"There is no %@.", "%@ fehlt.", "\u2068%@\u2069 غير موجود.", "\u2068%@\u2069 חסר."},
    Text{"There is no bundle “%@” in %@.", "Das Bundle „%@“ gibt es in %@ nicht.", "", ""},
    Text{"There is no code at %@.", "Unter %@ ist kein Code.", "", ""},
    Text{"This folder is empty.", "Dieser Ordner ist leer.", "هذا المجلد فارغ.", "התיקייה ריקה."},
    Text{"Time Zone", "Zeitzone", "المنطقة الزمنية", "אזור זמן"},
    Text{"You don’t have permission to save the file “{x}” in the folder “{y}”.",
         "Du darfst die Datei „{x}“ nicht im Ordner „{y}“ sichern.",
         "لا تملك إذنًا لحفظ الملف «{x}» في المجلد «{y}».",
         "אין לך הרשאה לשמור את הקובץ ”{x}“ בתיקייה ”{y}“."},
    Text{"“%@” could not be opened: %@.", "„%@“ konnte nicht geöffnet werden: %@.", "تعذر فتح «%@»: %@.",
         "לא ניתן היה לפתוח את ”%@“: %@."},
    Text{"“%@” is not of a kind that can be chosen.", "Dateien wie „%@“ können nicht gewählt werden.",
         "لا يمكن اختيار ملفات مثل «%@».", "לא ניתן לבחור קבצים כמו ”%@“."},
    Text{"“{x}” couldn’t be removed because the file name is invalid.",
         "„{x}“ konnte nicht entfernt werden, da der Dateiname ungültig ist.",
         "تعذرت إزالة «{x}» لأن اسم الملف غير صالح.", "לא ניתן היה להסיר את ”{x}“ משום ששם הקובץ אינו חוקי."},
    Text{"“{x}” couldn’t be removed because the volume is read only.",
         "„{x}“ konnte nicht entfernt werden, da das Volume nur gelesen werden kann.",
         "تعذرت إزالة «{x}» لأن وحدة التخزين للقراءة فقط.",
         "לא ניתן היה להסיר את ”{x}“ משום שהכונן לקריאה בלבד."},
    Text{"“{x}” couldn’t be removed because you don’t have permission to access it.",
         "„{x}“ konnte nicht entfernt werden, da du nicht darauf zugreifen darfst.",
         "تعذرت إزالة «{x}» لأنك لا تملك إذن الوصول إليه.",
         "לא ניתן היה להסיר את ”{x}“ משום שאין לך הרשאת גישה אליו."},
    Text{"“{x}” couldn’t be removed.", "„{x}“ konnte nicht entfernt werden.", "تعذرت إزالة «{x}».",
         "לא ניתן היה להסיר את ”{x}“."},
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

std::string systemText(std::string_view english, std::initializer_list<std::string> arguments) {
    return replacePlaceholders(systemText(english), std::span(arguments.begin(), arguments.size()));
}

std::string systemTextOfError(int error) {
    const auto* const english = strerrordesc_np(error);
    return english != nullptr ? systemText(english) : std::to_string(error);
}
