#include "Foundation/Format.h"

std::string replacePlaceholders(std::string_view format, std::span<const std::string> arguments) {
    std::string text;
    std::size_t used = 0;
    for (std::size_t i = 0; i < format.size(); ++i) {
        const bool isConversion = format[i] == '%' && i + 1 < format.size();
        if (isConversion && format[i + 1] == '@' && used < arguments.size()) {
            text += arguments[used++];
            ++i;
        } else {
            text += format[i];
            i += isConversion && format[i + 1] == '%' ? 1U : 0U;
        }
    }
    return text;
}
