#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kestrel::system {

// The text of an INI file, line by line. Sections and keys are matched without regard to letter
// case, of several the first. What is not changed stays as it is, byte for byte.
class IniText {
  public:
    IniText() = default;
    // Nothing for bytes that are no text. Those beyond ASCII may be in any encoding.
    static std::optional<IniText> Parse(std::string_view bytes);
    // Whether a value would read back as given once it is set.
    static bool CanHold(std::string_view section, std::string_view key, std::string_view value);

    std::vector<std::string_view> Sections() const;
    // Without the blanks around it and one pair of quotes.
    std::optional<std::string_view> Find(std::string_view section, std::string_view key) const;
    // Both answer whether they changed anything.
    bool Set(std::string_view section, std::string_view key, std::string_view value);
    bool Erase(std::string_view section, std::string_view key);
    std::string Text() const;

  private:
    struct Line {
        std::string text;
        std::string end;  // "\n", "\r\n", or nothing on a last line that was not ended
    };
    // Where a value stands, or would have to: indices of lines.
    struct Place {
        std::optional<std::size_t> section;
        std::optional<std::size_t> key;
        std::size_t insertion = 0;  // behind the section's last line that is not blank
    };

    Place Locate(std::string_view section, std::string_view key) const;
    void Insert(std::size_t index, std::string text);

    std::vector<Line> lines_;
};

}  // namespace kestrel::system
