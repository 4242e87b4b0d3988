#include "i18n/Messages.h"

#include <algorithm>
#include <cerrno>
#include <iterator>
#include <utility>

namespace kestrel::i18n {

namespace {

// Puts `name` in the place of every `mark`.
std::string Fill(std::string_view pattern, std::string_view name, std::string_view mark = "%1") {
    std::string text;
    for (std::size_t start = 0; start < pattern.size();) {
        const std::size_t hole = pattern.find(mark, start);
        text += pattern.substr(start, hole - start);
        if (hole == std::string_view::npos) break;
        text += name;
        start = hole + mark.size();
    }
    return text;
}

std::string WithReason(std::string_view reason, std::string_view sentence) {
    return std::string(reason).append(".\r\n\r\n").append(sentence);
}

constexpr Text kUntitledWindow{"KestrelIconEditor - Untitled", "KestrelIconEditor - 未命名"};
constexpr Text kCannotOpenChosen{"Unable to open the file %1", "不能打开 %1文件"};
constexpr Text kCannotOpenNamed{"Unable to open the file %1", "不能打开%1文件"};
constexpr std::pair<int, Text> kSystemReasons[] = {
    {ENOENT, {"The file does not exist", "文件不存在"}},
    {ENOTDIR, {"The folder does not exist", "文件夹不存在"}},
    {EACCES, {"There is no permission to read it", "没有读取权限"}},
    {EISDIR, {"It is a folder", "是文件夹"}},
    {EINVAL, {"It is no ordinary file", "不是普通文件"}},
    {EFBIG, {"The file is too large", "文件太大"}},
};
constexpr Text kIcons{" Icons", " 图标"};
constexpr Text kIconSelected{"Icon No. %1 Selected.", "选中第 %1个 图标."};
constexpr Text kIconOf{"Icon %1 of %2", "第 %1 个图标, 共 %2 个"};
constexpr Text kContainsNoIcons{"%1 contains no icons.", "%1 没有图标."};
constexpr Text kCannotOpenSource{"Unable to open the file %1", "不能打开文件 %1"};
constexpr Text kCannotSaveUntitled{"Unable to save Untitled.", "不能保存 Untitled.ico 文件."};
constexpr Text kCannotSave{"Unable to save %1", "不能保存 %1 文件."};
constexpr Text kCannotPrintUntitled{"Unable to print Untitled.", "不能打印 Untitled.ico 文件"};
constexpr Text kCannotPrint{"Unable to print %1", "不能打印 %1文件"};
constexpr Text kPrinterIsStopped{
    "The printer \"%1\" is stopped.\r\n\r\nThe icon waits in its queue until it is started again.",
    "打印机 \"%1\" 已停止.\r\n\r\n图标在打印队列中等待, 打印机恢复后将继续打印."};
constexpr Text kCannotLoadPalette{"Unable to load the palette file.", "不能打开调色板文件."};
constexpr Text kCannotSavePalette{"Unable to save the palette file.", "不能保存调色板文件."};
constexpr Text kCannotOpenHelp{"Unable to open the help file %1", "不能打开帮助文件 %1"};
constexpr Text kCannotOpenHomePage{"No web browser could be started.\r\n\r\nUnable to open %1",
                                   "无法启动网页浏览器.\r\n\r\n不能打开 %1"};
constexpr Text kCannotStart{
    "Unable to start %1: it is not installed or cannot be run.\r\n\r\n"
    "%1 is a companion program that %2. It is looked for here:\r\n%3",
    "不能运行 %1: 该程序尚未安装, 或无法运行.\r\n\r\n"
    "%1 是用于%2的配套程序, 应位于:\r\n%3"};
constexpr Text kChangedOutside{"\"%1\" has been changed by another program.\r\nOverwrite it?",
                               "\"%1\" 已被其它程序修改.\r\n是否覆盖?"};
constexpr Text kSeveralIcons{
    "The file \"%1\" contains multiple icons.\r\n"
    "This \"Save\" will overwrite the other icons in the file.\r\n\r\n"
    "Click Ok to continue with \"Save\".\r\n"
    "Click Cancel to \"Save As\".",
    "\"%1\" 文件包含多个图标.\r\n"
    "若 \"保存\" 将覆盖此文件中的其它图标.\r\n\r\n"
    "点击‘确定’继续 \"保存\".\r\n"
    "点击 ‘取消’ 将 \"另存为\"."};

}  // namespace

std::string WindowTitle(std::string_view fileTitle) {
    if (fileTitle.empty()) return std::string(kUntitledWindow.Now());
    return std::string(kProgramName) + " - " + std::string(fileTitle);
}

std::string CannotOpenChosen(std::string_view fileTitle, std::string_view reason) {
    return Fill(kCannotOpenChosen.Now(), fileTitle).append("\r\n").append(reason).append(".");
}

std::string CannotOpenNamed(std::string_view fileTitle, std::string_view reason) {
    return Fill(kCannotOpenNamed.Now(), fileTitle).append("\r\n").append(reason).append(".");
}

std::string_view ReasonOf(int systemError, std::string_view description) {
    const auto* reason =
        std::ranges::find(kSystemReasons, systemError, [](const auto& each) { return each.first; });
    return reason == std::end(kSystemReasons) ? description : reason->second.Now();
}

std::string ExtractionTitle(std::string_view fileTitle, int count) {
    return WindowTitle(fileTitle) + " - " + std::to_string(count) + std::string(kIcons.Now());
}

std::string IconSelected(int number) {
    return Fill(kIconSelected.Now(), std::to_string(number));
}

std::string IconOf(int number, int count) {
    return Fill(Fill(kIconOf.Now(), std::to_string(number)), std::to_string(count), "%2");
}

std::string ContainsNoIcons(std::string_view fileTitle) {
    return Fill(kContainsNoIcons.Now(), fileTitle);
}

std::string CannotOpenSource(std::string_view path) {
    return Fill(kCannotOpenSource.Now(), path);
}

std::string CannotSave(std::string_view reason, std::string_view fileTitle) {
    const Text& sentence = fileTitle.empty() ? kCannotSaveUntitled : kCannotSave;
    return WithReason(reason, Fill(sentence.Now(), fileTitle));
}

std::string CannotPrint(std::string_view reason, std::string_view fileTitle) {
    const Text& sentence = fileTitle.empty() ? kCannotPrintUntitled : kCannotPrint;
    return WithReason(reason, Fill(sentence.Now(), fileTitle));
}

std::string PrinterIsStopped(std::string_view printer) {
    return Fill(kPrinterIsStopped.Now(), printer);
}

std::string Filled(const Text& text, std::string_view name) {
    return Fill(text.Now(), name);
}

std::string CannotLoadPalette(std::string_view reason) {
    return WithReason(reason, kCannotLoadPalette.Now());
}

std::string CannotSavePalette(std::string_view reason) {
    return WithReason(reason, kCannotSavePalette.Now());
}

std::string CannotLocate(std::string_view path) {
    return "Unable to locate " + std::string(path);
}

std::string CannotOpenHelp(std::string_view path) {
    return Fill(kCannotOpenHelp.Now(), path);
}

std::string CannotOpenHomePage(std::string_view url) {
    return Fill(kCannotOpenHomePage.Now(), url);
}

std::string CannotStart(std::string_view program, const Text& purpose, std::string_view file) {
    // The file comes last: its name may hold what looks like a mark.
    return Fill(Fill(Fill(kCannotStart.Now(), program), purpose.Now(), "%2"), file, "%3");
}

std::string ChangedOutside(std::string_view fileTitle) {
    return Fill(kChangedOutside.Now(), fileTitle);
}

std::string SeveralIcons(std::string_view fileTitle) {
    return Fill(kSeveralIcons.Now(), fileTitle);
}

}  // namespace kestrel::i18n
