#pragma once

#include <QImage>
#include <map>
#include <string>

namespace kestrel::artwork {

// Files that windows show.
struct PictureSources {
    std::string icon;
    std::string library;
};

// Windows as they look in both languages, and a printed page, by the names of their files without
// ending. Needs a QApplication.
std::map<std::string, QImage> WindowPictures(const PictureSources& sources);

}  // namespace kestrel::artwork
