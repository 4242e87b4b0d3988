#include "desktop/ScreenPortal.h"

#include <gtest/gtest.h>

#include <QImage>

#include "services/Screen.h"
#include "tests/desktop/hosts/FakePortal.h"

namespace kestrel::desktop {
namespace {

TEST(ScreenPortal, GivesThePictureOrTellsWhyThereIsNone) {
    const test::OwnBus bus;
    const QDBusConnection asking = QDBusConnection::connectToBus(bus.address, "asking");
    const QDBusConnection none = QDBusConnection::connectToBus("unix:path=/none", "none");
    EXPECT_EQ(PictureFromPortal(none).error().number, services::kNoScreenPictures);
    const auto error = [&] {
        const auto picture = PictureFromPortal(asking);
        return picture ? 0 : picture.error().number;
    };
    EXPECT_EQ(error(), services::kNoScreenPictures);
    test::FakePortal portal;
    ASSERT_TRUE(portal.Begin(bus.address));
    EXPECT_EQ(error(), services::kScreenRefused) << "a picture that is nowhere";

    const QString file = bus.folder.filePath("a b.png");
    QImage shown(40, 33, QImage::Format_RGB32);
    shown.fill(0xFF8000);
    ASSERT_TRUE(shown.save(file));
    portal.picture = QUrl::fromLocalFile(file);
    const auto picture = PictureFromPortal(asking);
    ASSERT_TRUE(picture);
    EXPECT_EQ(picture->Pixels().size(), 40U * 33);
    EXPECT_EQ(picture->GetPixel(39, 32), 0x0080FFU);
    EXPECT_FALSE(portal.interactive || QFile::exists(file));

    portal.code = 1;
    EXPECT_EQ(error(), services::kScreenRefused) << "by the user";
    portal.vanishes = true;
    EXPECT_EQ(error(), services::kScreenRefused) << "a portal that ends";
}

}  // namespace
}  // namespace kestrel::desktop
