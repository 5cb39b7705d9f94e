#include "Utf16Text.h"

#include <QStringDecoder>
#include <algorithm>

Utf16Text::Utf16Text(std::string_view utf8) {
    QStringDecoder decoder(QStringDecoder::Utf8, QStringConverter::Flag::ConvertInitialBom);
    std::size_t characterStart = 0;
    for (std::size_t index = 0; index < utf8.size(); ++index) {
        const QString units = decoder(QByteArrayView(&utf8[index], 1));
        if (units.isEmpty())
            continue;
        string_ += units;
        byteIndexes_.resize(static_cast<std::size_t>(string_.size()), characterStart);
        characterStart = index + 1;
    }
    if (characterStart < utf8.size()) { // a character that the text's end cuts short
        string_ += QChar::ReplacementCharacter;
        byteIndexes_.push_back(characterStart);
    }
    byteIndexes_.push_back(utf8.size());
}

std::size_t Utf16Text::byteIndex(qsizetype position) const {
    return byteIndexes_[static_cast<std::size_t>(std::clamp<qsizetype>(position, 0, string_.size()))];
}

qsizetype Utf16Text::position(std::size_t byteIndex) const {
    if (byteIndex >= byteIndexes_.back())
        return string_.size();
    const auto after = std::ranges::upper_bound(byteIndexes_, byteIndex);
    const auto first = std::ranges::lower_bound(byteIndexes_, *(after - 1));
    return first - byteIndexes_.begin();
}
