// Writes the program's icon as the files that a desktop wants: make_artwork <folder>.

#include <QImage>
#include <cstdio>

#include "app/ApplicationIcon.h"
#include "document/IcoFile.h"
#include "platform/qt/Pictures.h"
#include "platform/system/DiskFiles.h"

int main(int argc, char* argv[]) {
    using namespace kestrel;
    if (argc != 2) {
        std::fputs("Usage: make_artwork <folder>\n", stderr);
        return 2;
    }
    const std::string folder = argv[1];
    const document::IconDocument icon = app::ApplicationIcon();
    system::DiskFiles files;
    bool written = document::WriteIcoCopy(files, icon, folder + "/kestrel.ico").has_value();

    const QImage picture = qt::ToImage(icon.PicMask, icon.PicImage);
    for (const int scale : {1, 2, 4, 8}) {
        const int size = document::kIconSize * scale;
        const std::string name = folder + "/kestrel-icon-editor-" + std::to_string(size) + ".png";
        written = picture.scaled(size, size).save(QString::fromStdString(name)) && written;
    }
    return written ? 0 : 1;
}
