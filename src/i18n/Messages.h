#pragma once

#include <array>
#include <string>
#include <string_view>

#include "i18n/Language.h"

namespace kestrel::i18n {

inline constexpr std::string_view kProgramName = "KestrelIconEditor";
inline constexpr Text kErrorTitle{"KestrelIconEditor - Error", "KestrelIconEditor - 错误"};

// The tray: before and after the file's name.
inline constexpr std::string_view kTrayIconFailed = "Error Loading file";
inline constexpr std::string_view kTrayErrorTitle = "Error";

// Start-up: the checks speak before the window exists.
inline constexpr Text kRunningText{"Program is running !", "请不要重复运行程序！"};
inline constexpr Text kRunningTitle{"error!", "错误!"};
inline constexpr Text kScreenTooSmall{
    "KestrelIconEditor requires a screen resolution of at least 640 x 480 pixels.\r\n\r\n"
    "Please adjust your screen resolution and try again.",
    "KestrelIconEditor 显示屏分辨率需设置为640×480以上.\r\n\r\n请在调整分辨率后重新运行程序."};
inline constexpr Text kTooFewColors{
    "KestrelIconEditor requires at least high color mode.\r\n\r\n"
    "Please adjust your color mode and try again.",
    "KestrelIconEditor 颜色模式需设置为真彩色.\r\n\r\n请在调整颜色模式后重新运行程序."};

// What --help prints.
inline constexpr Text kUsage{
    "Usage: KestrelIconEditor [/open FILE]\n\n"
    "Edits icons of 32 x 32 pixels.\n\n"
    "  /open FILE   opens an icon, cursor or PNG file\n"
    "  --help       prints this\n"
    "  --version    prints the version\n",
    "用法: KestrelIconEditor [/open 文件]\n\n"
    "编辑 32 x 32 像素的图标.\n\n"
    "  /open 文件   打开图标, 光标或 PNG 文件\n"
    "  --help       显示本说明\n"
    "  --version    显示版本\n"};

// The offer after a run that did not end in order.
inline constexpr Text kRestoreWork{
    "KestrelIconEditor was not closed properly.\r\nRestore the icon that was being edited?",
    "KestrelIconEditor 上次未正常关闭.\r\n是否恢复正在编辑的图标?"};

// Document commands.
inline constexpr Text kSaveChanges{"Save changes to current icon?", "是否保存当前编辑的图标?"};
inline constexpr Text kOpenTitle{"KestrelIconEditor - Open", "KestrelIconEditor - 打开"};
inline constexpr Text kSaveAsTitle{"KestrelIconEditor - Save As", "KestrelIconEditor - 保存为"};
inline constexpr std::string_view kIconFilter = "Icon Files (*.ico)|*.ico";
// Open offers both, too.
inline constexpr Text kCursorFilter{"|Icon and Cursor Files (*.ico; *.cur)|*.ico;*.cur",
                                    "|图标和光标文件 (*.ico; *.cur)|*.ico;*.cur"};

// The window title of an icon whose file has this name; empty for a new icon.
std::string WindowTitle(std::string_view fileTitle);

// A file that Open refused: chosen in the dialog, or named by command line, drop or recent list.
// `reason` stands on a line of its own.
std::string CannotOpenChosen(std::string_view fileTitle, std::string_view reason);
std::string CannotOpenNamed(std::string_view fileTitle, std::string_view reason);

// Why a file could not be read: what the system calls an error of this number, or `description`
// where there is no text for it.
std::string_view ReasonOf(int systemError, std::string_view description);

// Why a file that could be read holds no icon to be opened.
inline constexpr Text kEmptyFile{"The file is empty", "文件是空的"};
inline constexpr Text kNoPicture{"It is no icon, cursor or PNG file", "不是图标, 光标或 PNG 文件"};
inline constexpr Text kDamagedPicture{"The image is damaged", "图像已损坏"};
inline constexpr Text kPictureTooLarge{"The image is too large", "图像太大"};
inline constexpr Text kOs2Icon{"OS/2 icons cannot be read", "无法读取 OS/2 图标"};
inline constexpr Text kWindows1Icon{"Icons of Windows 1 and 2 cannot be read",
                                    "无法读取 Windows 1 和 2 的图标"};
inline constexpr Text kProgramWithoutIcons{"It is a program without icons that can be read",
                                           "是程序文件, 其中没有可读取的图标"};
inline constexpr Text kSeveralIconsInside{
    "It holds icons of which one is taken with \"Library\" in the File menu",
    "其中包含多个图标, 请用文件菜单的图标库选取"};

// The extraction of icons.
inline constexpr std::string_view kSourceFilter =
    "All Files (*.*)|*.*|Animated Cursor Files (*.ani)|*.ani|"
    "Dynamic Link Library Files (*.dll)|*.dll|Executable Files (*.exe)|*.exe|"
    "Icon Library Files (*.icl)|*.icl";
// The title over so many icons of a file.
std::string ExtractionTitle(std::string_view fileTitle, int count);
// Numbers count from 1.
std::string IconSelected(int number);
// For screen readers.
std::string IconOf(int number, int count);
std::string ContainsNoIcons(std::string_view fileTitle);
std::string CannotOpenSource(std::string_view path);

// A save that failed; `reason` is the system's description. Empty file title: a new icon.
std::string CannotSave(std::string_view reason, std::string_view fileTitle);

// A recent file that is gone; this one speaks English only.
std::string CannotLocate(std::string_view path);

// The search field of the help.
inline constexpr Text kSearchHelp{"Search this help (Ctrl+F)", "搜索帮助 (Ctrl+F)"};
inline constexpr Text kNotFound{"Not found", "未找到"};

// Kinds of files in the list of the file dialogs, which the desktop library's Chinese lacks.
inline constexpr std::array kFileKinds{Text{"Folder", "文件夹"}, Text{"Drive", "驱动器"},
                                       Text{"Shortcut", "快捷方式"}, Text{"Unknown", "未知"}};
// The file dialogs; %1 is the name or path in question.
inline constexpr Text kOpenReadOnly{"Open as &read-only", "以只读方式打开(&R)"};
inline constexpr Text kReplaceFile{"%1 already exists.\r\nDo you want to replace it?",
                                   "%1 已存在.\r\n是否替换?"};
inline constexpr Text kFileNotFound{
    "%1\r\nFile not found.\r\nPlease verify the correct file name was given.",
    "%1\r\n找不到文件.\r\n请检查文件名是否正确."};
inline constexpr Text kFolderNotFound{
    "%1\r\nDirectory not found.\r\nPlease verify the correct directory name was given.",
    "%1\r\n找不到文件夹.\r\n请检查文件夹名是否正确."};
inline constexpr Text kNotAFileName{"%1\r\nThe file name is not valid.", "%1\r\n文件名无效."};
inline constexpr Text kFileNameTooLong{"%1\r\nThe file name is too long.", "%1\r\n文件名太长."};
// What they tell of the file that is marked; %1 is a number.
inline constexpr Text kPreview{"Preview", "预览"};
inline constexpr Text kBitsPerPixel{"%1 bits", "%1 位"};
inline constexpr Text kImageCount{"%1 images", "%1 个图像"};
inline constexpr Text kIconCount{"%1 icons", "%1 个图标"};
// The text in the language in force with `name` in the place of every "%1".
std::string Filled(const Text& text, std::string_view name);

// Printing, and the preview of states, which goes the same way. Empty file title: a new icon.
inline constexpr Text kNoPrinter{"Can not print,please add a printer at first！",
                                 "没有安装打印机，不能进行打印预览！"};
std::string CannotPrint(std::string_view reason, std::string_view fileTitle);
// Why a printer did not take a job.
inline constexpr Text kPrinterRejects{"The printer accepts no jobs", "打印机不接受打印任务"};
inline constexpr Text kPrinterIsGone{"The printer does not exist any more", "打印机已不存在"};
inline constexpr Text kPrintServerIsSilent{"The print server does not answer",
                                           "打印服务器没有响应"};
// One that took it but prints nothing for now.
std::string PrinterIsStopped(std::string_view printer);

// Palette files; `reason` is the system's description.
inline constexpr std::string_view kLoadPaletteFilter =
    "Palette Files (*.PAL)|*.PAL|All Files (*.*)|*.*";
inline constexpr std::string_view kSavePaletteFilter =
    "Palette Files (*.PAL)|*.PAL|All FIles (*.*)|*.*";
std::string CannotLoadPalette(std::string_view reason);
std::string CannotSavePalette(std::string_view reason);

// Programs and pages beside the editor.
inline constexpr Text kHelpTitle{"KestrelIconEditor - Help", "KestrelIconEditor - 帮助"};
std::string CannotOpenHelp(std::string_view path);
std::string CannotOpenHomePage(std::string_view url);
// A companion program that cannot be started: its name, what it would do, and its file.
std::string CannotStart(std::string_view program, const Text& purpose, std::string_view file);
inline constexpr Text kCapturesScreen{"takes pictures of the screen", "截取屏幕图像"};
inline constexpr Text kBrowsesIcons{"browses pictures and icons", "浏览图像和图标"};
inline constexpr Text kShowsClipboard{"shows what the clipboard holds", "查看剪切板内容"};

// The system information has no viewer.
inline constexpr Text kNoSystemInformation{"System Information Is Unavailable At This Time",
                                           "目前无法显示系统信息"};
// The magnifier, where the desktop keeps the screen to itself.
inline constexpr Text kCannotMagnify{
    "This desktop does not let programs see the screen.\r\n\r\nUnable to magnify the screen.",
    "此桌面不允许程序读取屏幕内容.\r\n\r\n不能放大屏幕."};

// Clipboard.
inline constexpr Text kCannotPaste{
    "The image on the clipboard is gone, damaged, too large or did not arrive in time.\r\n\r\n"
    "Unable to paste.",
    "剪切板中的图像已不存在, 已损坏, 过大或未能及时送达.\r\n\r\n不能粘贴."};

// The capture, where no program may see the screen.
inline constexpr Text kNoScreenPictures{
    "This desktop does not let programs see the screen, and it offers no service that would take a "
    "picture of it.\r\n\r\nUnable to capture.",
    "此桌面不允许程序读取屏幕, 也没有提供截屏服务.\r\n\r\n不能捕捉图像."};
inline constexpr Text kScreenRefused{
    "The desktop did not give a picture of the screen.\r\n\r\nUnable to capture.",
    "桌面没有提供屏幕图像.\r\n\r\n不能捕捉图像."};

// The question before a save replaces a file that another program has changed since it was opened.
std::string ChangedOutside(std::string_view fileTitle);

// The warning before a save replaces a file that held several icons.
std::string SeveralIcons(std::string_view fileTitle);

}  // namespace kestrel::i18n
