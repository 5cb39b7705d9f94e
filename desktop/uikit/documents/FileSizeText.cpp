#include "documents/FileSizeText.h"

#include "Device.h"
#include "SystemTexts.h"

#include <QLocale>
#include <array>
#include <cstddef>

std::string fileSizeText(std::uint64_t bytes) {
    constexpr std::array units{"KB", "MB", "GB", "TB"};
    constexpr double step = 1000;
    constexpr double roundsUp = 999.5; // to the next unit
    const QLocale locale(QString::fromStdString(Device::current().locale()));
    if (bytes < static_cast<std::uint64_t>(step))
        return systemText(bytes == 1 ? "%@ byte" : "%@ bytes",
                          {locale.toString(static_cast<qulonglong>(bytes)).toStdString()});
    std::size_t unit = 0;
    auto size = static_cast<double>(bytes) / step;
    for (; size >= roundsUp && unit + 1 < units.size(); ++unit)
        size /= step;
    const auto digits = unit == 0 ? 0 : 1; // kilobytes are whole
    auto text = locale.toString(size, 'f', digits);
    const auto zero = locale.decimalPoint() + locale.zeroDigit();
    if (text.endsWith(zero))
        text.chop(zero.size());
    return text.toStdString() + " " + units.at(unit);
}
