#include "HeifPicture.h"

#include <libheif/heif.h>

#include <cstddef>
#include <cstdint>
#include <memory>

namespace {

constexpr int signatureSize = 12; ///< bytes that the library asks for to tell a kind

using Context = std::unique_ptr<heif_context, decltype(&heif_context_free)>;
using Handle = std::unique_ptr<heif_image_handle, decltype(&heif_image_handle_release)>;
using Image = std::unique_ptr<heif_image, decltype(&heif_image_release)>;

/// Null when there is none, or one that is too large.
Handle mainPictureOf(heif_context& context, std::int64_t greatestPixelCount) {
    heif_image_handle* found = nullptr;
    heif_context_get_primary_image_handle(&context, &found);
    Handle handle(found, &heif_image_handle_release);
    if (handle && std::int64_t{heif_image_handle_get_width(found)} * heif_image_handle_get_height(found) >
                      greatestPixelCount)
        handle.reset();
    return handle;
}

Image decoded(const heif_image_handle& handle) {
    heif_image* image = nullptr;
    heif_decode_image(&handle, &image, heif_colorspace_RGB, heif_chroma_interleaved_RGBA, nullptr);
    return {image, &heif_image_release};
}

} // namespace

bool isHeif(const QByteArray& content) {
    if (content.size() < signatureSize)
        return false;
    const auto start = content.first(signatureSize);
    const auto kind = heif_check_filetype(reinterpret_cast<const std::uint8_t*>(start.data()), signatureSize);
    return kind == heif_filetype_yes_supported || kind == heif_filetype_yes_unsupported;
}

std::optional<QImage> heifPicture(const QByteArray& content, std::int64_t greatestPixelCount) {
    const Context context(heif_context_alloc(), &heif_context_free);
    heif_context_read_from_memory_without_copy(context.get(), content.data(),
                                               static_cast<std::size_t>(content.size()), nullptr);
    const auto handle = mainPictureOf(*context, greatestPixelCount);
    const auto image = handle ? decoded(*handle) : Image(nullptr, &heif_image_release);
    if (!image)
        return std::nullopt;
    int stride = 0;
    const auto* const pixels = heif_image_get_plane_readonly(image.get(), heif_channel_interleaved, &stride);
    if (pixels == nullptr)
        return std::nullopt;
    return QImage(pixels, heif_image_get_width(image.get(), heif_channel_interleaved),
                  heif_image_get_height(image.get(), heif_channel_interleaved), stride,
                  QImage::Format_RGBA8888)
        .copy();
}
