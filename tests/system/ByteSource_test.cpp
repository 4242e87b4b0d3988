#include "platform/system/ByteSource.h"

#include <fcntl.h>

#include <algorithm>
#include <cerrno>

#include "tests/system/TemporaryFolder.h"

namespace kestrel::system {
namespace {

class ByteSourceTest : public TemporaryFolder {};

// A byte that its offset tells.
char At(std::size_t offset) {
    return static_cast<char>(offset * 7 / 5);
}

TEST_F(ByteSourceTest, ReadsPartsOfAnyLengthAnywhere) {
    std::string content(400000, ' ');
    for (std::size_t i = 0; i < content.size(); ++i)
        content[i] = At(i);
    MakeFile(Path("file"), content);
    const auto source = OpenByteSource(Path("file")).value();
    ASSERT_EQ(source->Size(), content.size());
    for (const std::size_t length : {1U, 4U, 32768U, 32769U, 100000U}) {
        for (std::size_t at = 0; at + length <= content.size(); at += 32767) {
            std::vector<std::uint8_t> part(length);
            ASSERT_TRUE(source->Read(at, part));
            ASSERT_TRUE(std::ranges::equal(part, content.substr(at, length),
                                           [](std::uint8_t one, char other) {
                                               return one == static_cast<std::uint8_t>(other);
                                           }))
                << at << ' ' << length;
        }
    }
}

TEST_F(ByteSourceTest, FailsWhereTheFileChangesMeanwhile) {
    for (const bool cut : {false, true}) {
        MakeFile(Path("file"), std::string(100000, 'a'));
        const auto source = OpenByteSource(Path("file")).value();
        std::uint8_t byte = 0;
        EXPECT_TRUE(source->Read(0, {&byte, 1}));
        const timespec times[] = {{1, 0}, {1, 0}};
        if (cut) std::filesystem::resize_file(Path("file"), 50000);
        if (!cut) utimensat(AT_FDCWD, Path("file").c_str(), times, 0);
        EXPECT_EQ(NumberOf(source->Read(99999, {&byte, 1})), cut ? kFileChanged : 0);
        EXPECT_EQ(NumberOf(source->CheckUnchanged()), kFileChanged);
    }
}

TEST_F(ByteSourceTest, RefusesWhatIsNoFileOrTooLarge) {
    MakeFile(Path("large"), "");
    std::filesystem::resize_file(Path("large"), (std::uint64_t{1} << 32) - 1);
    EXPECT_TRUE(OpenByteSource(Path("large")));
    std::filesystem::resize_file(Path("large"), std::uint64_t{1} << 32);
    const std::pair<std::string, int> refused[] = {
        {Path("large"), EFBIG}, {Path("none"), ENOENT}, {folder_, EISDIR}, {"/dev/zero", EINVAL}};
    for (const auto& [path, number] : refused)
        EXPECT_EQ(NumberOf(OpenByteSource(path)), number) << path;
}

}  // namespace
}  // namespace kestrel::system
