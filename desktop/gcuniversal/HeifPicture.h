#pragma once

#include <QByteArray>
#include <QImage>
#include <cstdint>
#include <optional>

/// The container in which telephones keep their photos (HEIF; HEIC where it holds HEVC).

/// Whether a file says of itself that it is of that kind.
[[nodiscard]] bool isHeif(const QByteArray& content);

/// The main picture of such a file, turned as it is to be seen. Nothing when the file is damaged, when the
/// picture has more pixels than that, and when this machine has no decoder for what it is made with.
[[nodiscard]] std::optional<QImage> heifPicture(const QByteArray& content,
                                                std::int64_t greatestPixelCount = 64LL * 1024 * 1024);
