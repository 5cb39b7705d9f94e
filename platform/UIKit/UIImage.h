#pragma once

#include "Foundation/NSBundle.h"
#include "ObjectiveC/NSObject.h"

#include <string_view>

/// Whether an image is drawn in its own colours or as a shape in the tint of where it is shown. The numbers
/// are the platform's.
enum class UIImageRenderingMode : int { Automatic = 0, AlwaysOriginal = 1, AlwaysTemplate = 2 };

/// A picture or a symbol. Immutable.
class UIImage : public NSObject {
public:
    /// The system's symbol of that name; empty when there is none.
    [[nodiscard]] static Ref<UIImage> systemImageNamed(std::string_view name);

    /// The picture in a file, by device path; empty when there is none or it cannot be read. A name that ends
    /// in "@2x" or "@3x" before its extension tells the picture's pixels per point; where one for the display
    /// lies beside the file of the plain name, that one is taken.
    [[nodiscard]] static Ref<UIImage> imageWithContentsOfFile(std::string_view path);

    /// The picture at an absolute device path: the one whose name tells the display's pixels per point, if
    /// there is one, else any of that name. Empty when there is none or it cannot be read.
    [[nodiscard]] static Ref<UIImage> imageNamed(std::string_view path);

    /// The same for a picture among a bundle's resources, by its name there.
    [[nodiscard]] static Ref<UIImage> imageNamed(std::string_view name, const NSBundle& inBundle);

    /// The same image, drawn in that mode.
    [[nodiscard]] virtual Ref<UIImage> imageWithRenderingMode(UIImageRenderingMode mode) const = 0;
};
