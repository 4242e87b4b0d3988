#include "services/FileNameRules.h"

#include <algorithm>
#include <filesystem>

#include "i18n/Messages.h"
#include "platform/system/Characters.h"
#include "platform/system/PathText.h"

namespace kestrel::services {

namespace {

using system::NameOnDisk;

bool Exists(const std::string& path) {
    std::error_code ignored;
    return std::filesystem::exists(path, ignored);
}

bool IsFolder(const std::string& path) {
    std::error_code ignored;
    return std::filesystem::is_directory(path, ignored);
}

std::string FolderOf(const std::string& path) {
    return std::filesystem::path(path).parent_path().string();
}

// The path, or the folder and the names.
std::string AnswerOf(const std::vector<std::string>& paths) {
    if (paths.size() == 1) return paths[0];
    std::string answer = FolderOf(paths[0]) + '\0';
    for (const std::string& path : paths)
        answer.append(NameOnDisk(path)) += '\0';
    return answer;
}

}  // namespace

FileNameRules::Verdict FileNameRules::Judge(std::vector<std::string>& paths,
                                            const std::string& typed) const {
    for (std::string& path : paths)
        path = WithExtension(system::ResolvePath(path));
    if (const auto folder = std::find_if(paths.begin(), paths.end(), IsFolder);
        folder != paths.end()) {
        paths = {*folder};
        return Verdict::Enter;
    }
    const auto mayTake = [&](const std::string& path) {
        return IsName(path, typed) &&
               (purpose_ == FilePurpose::Open ? MayOpen(path) : MaySaveAs(path));
    };
    const bool taken = std::all_of(paths.begin(), paths.end(), mayTake) && FitsBuffer(paths);
    return taken ? Verdict::Take : Verdict::Stay;
}

// An existing file that is to be opened need not have an extension.
std::string FileNameRules::WithExtension(const std::string& path) const {
    const std::string& extension = record_.defaultExtension;
    if (extension.empty() || NameOnDisk(path).find('.') != std::string::npos || IsFolder(path) ||
        (purpose_ == FilePurpose::Open && Exists(path))) {
        return path;
    }
    return system::ResolvePath(path + (extension.starts_with('.') ? "" : ".") + extension);
}

bool FileNameRules::IsName(const std::string& path, const std::string& typed) const {
    const bool wildcards = typed.find_first_of("*?") != std::string::npos;
    // Quotes part several names.
    const bool several = purpose_ == FilePurpose::Save && typed.find('"') != std::string::npos;
    return (!several && (!wildcards || Exists(path))) || Refuse(i18n::kNotAFileName, typed);
}

bool FileNameRules::MayOpen(const std::string& path) const {
    return !Asks(kFileMustExist) || Exists(path) || Refuse(i18n::kFileNotFound, NameOnDisk(path));
}

bool FileNameRules::MaySaveAs(const std::string& path) const {
    const std::string folder = FolderOf(path);
    if (Asks(kPathMustExist) && !IsFolder(folder + '/'))
        return Refuse(i18n::kFolderNotFound, folder);
    if (!Asks(kOverwritePrompt) || !Exists(path)) return true;
    const std::string question = i18n::Filled(i18n::kReplaceFile, NameOnDisk(path));
    return boxes_.Show(BoxIcon::Exclamation, BoxButtons::YesNo, question, record_.title) ==
           Answer::Yes;
}

bool FileNameRules::FitsBuffer(const std::vector<std::string>& paths) const {
    return record_.maxFile == 0 || system::CountCharacters(AnswerOf(paths)) < record_.maxFile ||
           Refuse(i18n::kFileNameTooLong, NameOnDisk(paths[0]));
}

// Tells why, and is false.
bool FileNameRules::Refuse(const i18n::Text& sentence, std::string_view name) const {
    boxes_.Show(BoxIcon::Exclamation, BoxButtons::Ok, i18n::Filled(sentence, name), record_.title);
    return false;
}

void AnswerIn(FileRecord& record, const std::vector<std::string>& paths) {
    record.file = AnswerOf(paths);
    record.fileTitle = paths.size() > 1 ? "" : NameOnDisk(paths[0]);
}

}  // namespace kestrel::services
