#include "desktop/RecentlyUsed.h"

#include <QRegularExpression>

#include "desktop/BookmarkList.h"
#include "platform/system/DiskFiles.h"
#include "tests/system/TemporaryFolder.h"

namespace kestrel::desktop {
namespace {

const Bookmark kIcon{"file:///a.ico", "image/vnd.microsoft.icon", "2026-11-24T20:00:00Z"};

constexpr char kOthers[] = R"(<?xml version="1.0" encoding="UTF-8"?>
<!DOCTYPE xbel>
<xbel version="1.0"
      xmlns:bookmark="http://www.freedesktop.org/standards/desktop-bookmarks"
      xmlns:mime="http://www.freedesktop.org/standards/shared-mime-info" xmlns:x="urn:x"
>
  <!-- kept -->
  <bookmark href="file:///b.ico" added="2020-01-01T00:00:00Z" modified="2020-01-01T00:00:00Z">
    <title>&lt;b&gt; &amp; 图</title>
    <info><metadata owner="http://freedesktop.org"><bookmark:applications>
      <bookmark:application name="KestrelIconEditor" exec="old" modified="" count="7"/>
    </bookmark:applications></metadata></info>
  </bookmark>
  <bookmark href="file:///a.ico" added="2021-02-03T04:05:06Z" modified="2021-02-03T04:05:06Z">
    <info>
      <metadata owner="http://x.org"><x:y z="1"/><bookmark:applications/></metadata>
      <metadata owner="http://freedesktop.org">
        <mime:mime-type type="image/x-icon"/>
        <bookmark:private/>
        <bookmark:applications>
          <bookmark:application name="viewer" exec="&apos;viewer %u&apos;" count="2"/>
        </bookmark:applications>
      </metadata>
    </info>
  </bookmark>
</xbel>
)";

// Without blank space between elements.
std::string Compact(const std::optional<QByteArray>& list) {
    return list ? QString::fromUtf8(*list).replace(QRegularExpression(">\\s+<"), "><").toStdString()
                : "none";
}

TEST(BookmarkListTest, ChangesOneBookmarkAndNothingElse) {
    const auto once = WithBookmark(kOthers, kIcon);
    const auto twice = WithBookmark(once.value_or(""), kIcon);
    QByteArray expected = kOthers;
    const QByteArray added = "added=\"2021-02-03T04:05:06Z\" modified=\"";
    expected.replace(added + "2021-02-03T04:05:06Z\"",
                     added + kIcon.time.toLatin1() + "\" visited=\"" + kIcon.time.toLatin1() + '"');
    expected.replace("count=\"2\"/>",
                     "count=\"2\"/><bookmark:application name=\"KestrelIconEditor\" "
                     "exec=\"'KestrelIconEditor /open %f'\" modified=\"" +
                         kIcon.time.toLatin1() + "\" count=\"1\"/>");
    expected.replace("&apos;", "'").replace("\n      xmlns", " xmlns").replace("\n>", ">");
    EXPECT_EQ(Compact(once), Compact(expected));
    EXPECT_EQ(Compact(twice), Compact(expected.replace("count=\"1\"", "count=\"2\"")));
    EXPECT_EQ(twice->size(), once->size()) << "the list must not grow";
}

TEST(BookmarkListTest, LeavesAloneWhatIsNoList) {
    const QByteArray whole = kOthers;
    for (const QByteArray& text :
         {QByteArray(" "), QByteArray("<html/>"), whole.chopped(9), whole + "<xbel/>",
          QByteArray(whole).replace("kept -->", "-- -->"), QByteArray(whole).replace("图", "\xFF"),
          QByteArray(whole).replace("desktop-bookmarks", "other")}) {
        EXPECT_FALSE(WithBookmark(text, kIcon)) << text.constData();
    }
}

using RecentlyUsedTest = system::TemporaryFolder;

// Another program writes while the list is read.
class BusyFiles : public system::DiskFiles {
  public:
    Result<system::LoadedFile> LoadFile(const std::string& path, std::size_t limit) override {
        auto loaded = DiskFiles::LoadFile(path, limit);
        if (!written) system::MakeFile(path, kOthers);
        written = true;
        return loaded;
    }
    bool written = false;
};

TEST_F(RecentlyUsedTest, MakesAPrivateListAndMergesWithOthers) {
    const std::string list = Path("recently-used.xbel");
    system::DiskFiles files;
    RecentlyUsed(files, list).Add("/a b/\xE5\x9B\xBE;%\xFF.CUR");
    EXPECT_EQ(system::ModeOf(list), 0600U);
    const std::string made = system::ContentOf(list);
    EXPECT_NE(made.find("href=\"file:///a%20b/%E5%9B%BE%3B%25%FF.CUR\""), std::string::npos)
        << made;
    EXPECT_NE(made.find("<mime:mime-type type=\"image/x-win-bitmap\"/>"), std::string::npos);

    BusyFiles busy;
    RecentlyUsed(busy, list).Add("/new.ico");
    const std::string merged = system::ContentOf(list);
    EXPECT_NE(merged.find("file:///b.ico"), std::string::npos) << merged;
    EXPECT_NE(merged.find("file:///new.ico"), std::string::npos);

    system::MakeFile(list, "mine");
    RecentlyUsed(files, list).Add("/a.ico");
    EXPECT_EQ(system::ContentOf(list), "mine");
    EXPECT_EQ(Names().size(), 1U);
}

}  // namespace
}  // namespace kestrel::desktop
