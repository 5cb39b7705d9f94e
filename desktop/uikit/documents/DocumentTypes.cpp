#include "documents/DocumentTypes.h"

#include <QString>
#include <algorithm>
#include <array>

namespace {

constexpr std::string_view everyFile = "public.data";

/// A type that files have whose names end so, in any case.
struct Suffix {
    std::string_view ending;
    std::string_view type;
};

constexpr std::array suffixes{
    Suffix{".gz", "public.archive"},          Suffix{".gz", "org.gnu.gnu-zip"},
    Suffix{".gz", "org.gnu.gnu-zip-archive"}, Suffix{".tar.gz", "org.gnu.gnu-zip-tar"},
    Suffix{".tgz", "public.archive"},         Suffix{".tgz", "org.gnu.gnu-zip-tar"},
    Suffix{".tar", "public.archive"},         Suffix{".tar", "public.tar-archive"},
};

} // namespace

bool isOfOneOf(const std::vector<std::string>& types, std::string_view fileName) {
    const auto name = QString::fromUtf8(fileName.data(), static_cast<qsizetype>(fileName.size()));
    return std::ranges::any_of(types, [&name](const std::string& type) {
        return type == everyFile || std::ranges::any_of(suffixes, [&](const Suffix& suffix) {
                   return suffix.type == type &&
                          name.endsWith(QLatin1StringView(suffix.ending.data(),
                                                          static_cast<qsizetype>(suffix.ending.size())),
                                        Qt::CaseInsensitive);
               });
    });
}
