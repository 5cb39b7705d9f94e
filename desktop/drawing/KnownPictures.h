#pragma once

#include "Foundation/NSData.h"

#include <QImage>
#include <list>
#include <string>
#include <vector>

/// The last pictures that were decoded from files, by the files' contents, since a page reads the same ones
/// each time that it opens. One for the process; used by the thread of the application alone.
class KnownPictures {
public:
    /// Bytes of pixels that are kept, the last used ones.
    static constexpr qsizetype capacity = qsizetype{2} << 20;

    /// Larger pictures than these are not kept; bytes of pixels.
    static constexpr qsizetype largest = capacity / 4;

    [[nodiscard]] static KnownPictures& shared();

    /// The picture that a file contains, ARGB32 premultiplied: decoded, or that of the same content before;
    /// null when it contains none.
    [[nodiscard]] QImage picture(const NSData& content);

    /// How often something had to be decoded.
    [[nodiscard]] std::size_t decodedCount() const { return decodedCount_; }

    /// Has `prepare` decode the pictures in a folder of the device, and in those within it, whose names end
    /// like that.
    void expect(const std::string& folder, const std::string& ending);

    /// Has `prepare` decode none any more.
    void expectNothing();

    /// Decodes a picture that is expected, or looks for more. \pre there is a device when some are expected
    /// \returns whether there was something to be done
    bool prepare();

private:
    struct Known {
        NSData content;
        QImage picture;
    };

    struct Expected {
        std::string folder;
        std::string ending;
    };

    void keep(const NSData& content, const QImage& picture);
    /// \returns the names in it that do not end like that
    std::vector<std::string> lookInto(const Expected& expected);

    std::list<Known> known_;        ///< the last used first
    std::vector<Expected> folders_; ///< that were not looked into yet
    std::vector<std::string> files_;
    std::size_t decodedCount_ = 0;
};
