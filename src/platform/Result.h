#pragma once

#include <string>
#include <tl/expected.hpp>
#include <utility>

namespace kestrel {

// Why an operation failed. `number` is an errno value for system failures or one of the codes
// below; `description` is the text a message box may show, without a final period; `source` is the
// part of the program that failed, where it has a name.
struct Error {
    int number = 0;
    std::string description;
    std::string source{};
};

// The user closed a standard dialog without choosing; commands end silently on it.
inline constexpr int kDialogCancelled = 32755;
// The bytes are not a picture that the reader understands.
inline constexpr int kInvalidPicture = 481;
// The file can be read, but there is no icon in it.
inline constexpr int kNoIcons = 1001;
// Nor in this program: its icons are kept in another file.
inline constexpr int kIconsElsewhere = 1002;
// The print job was taken, but its printer is stopped.
inline constexpr int kPrinterStopped = 1101;
// Another program wrote to the file while it was read.
inline constexpr int kFileChanged = 1003;

// A value or the reason why there is none. May not be dropped.
template <class T>
class [[nodiscard]] Result : public tl::expected<T, Error> {
  public:
    using tl::expected<T, Error>::expected;
};

inline tl::unexpected<Error> Fail(int number, std::string description) {
    return tl::unexpected<Error>(Error{number, std::move(description)});
}

}  // namespace kestrel
