#pragma once

#include <string>
#include <vector>

#include "i18n/Language.h"
#include "services/DesktopDialogs.h"
#include "services/MessageBoxes.h"

namespace kestrel::services {

enum class FilePurpose { Open, Save };

// The rules of a file dialog for the names in it, by the flags of its record. A name in other
// letter case is the file that exists.
class FileNameRules {
  public:
    // What the dialog does next: ends, stays because a name was refused, or shows a folder.
    enum class Verdict { Take, Stay, Enter };

    // The boxes bear the title of the record.
    FileNameRules(MessageBoxes& boxes, FilePurpose purpose, const FileRecord& record)
        : boxes_(boxes), purpose_(purpose), record_(record) {}

    // `paths` are absolute, at least one; they become those on the disk with the extension that
    // was left out, or the one folder to show. `typed` is the text they were made of.
    Verdict Judge(std::vector<std::string>& paths, const std::string& typed) const;

  private:
    bool Asks(std::uint32_t flag) const { return (record_.flags & flag) != 0; }
    std::string WithExtension(const std::string& path) const;
    bool IsName(const std::string& path, const std::string& typed) const;
    bool MayOpen(const std::string& path) const;
    bool MaySaveAs(const std::string& path) const;
    bool FitsBuffer(const std::vector<std::string>& paths) const;
    bool Refuse(const i18n::Text& sentence, std::string_view name) const;

    MessageBoxes& boxes_;
    FilePurpose purpose_;
    const FileRecord& record_;
};

// Puts the chosen paths into the record's `file` and `fileTitle`.
void AnswerIn(FileRecord& record, const std::vector<std::string>& paths);

}  // namespace kestrel::services
