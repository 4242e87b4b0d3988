#include "i18n/DesktopTexts.h"

#include <algorithm>
#include <array>

#include "i18n/Language.h"

namespace kestrel::i18n {

namespace {

// The English texts are those that the desktop library asks a translation for.
constexpr std::array kDesktopTexts = {
    // Standard buttons.
    Text{"OK", "确定"},
    Text{"Cancel", "取消"},
    Text{"&Yes", "是(&Y)"},
    Text{"&No", "否(&N)"},
    Text{"&Open", "打开(&O)"},
    Text{"&Save", "保存(&S)"},
    Text{"Open", "打开"},
    Text{"Save", "保存"},
    // Menus of text boxes and scroll bars.
    Text{"&Undo", "撤消(&U)"},
    Text{"&Redo", "恢复(&R)"},
    Text{"Cu&t", "剪切(&T)"},
    Text{"&Copy", "复制(&C)"},
    Text{"Copy &Link Location", "复制链接地址(&L)"},
    Text{"&Paste", "粘贴(&P)"},
    Text{"Delete", "删除"},
    Text{"Select All", "全选"},
    Text{"Scroll here", "滚动到此处"},
    Text{"Top", "顶部"},
    Text{"Bottom", "底部"},
    Text{"Left edge", "左边缘"},
    Text{"Right edge", "右边缘"},
    Text{"Page up", "向上翻页"},
    Text{"Page down", "向下翻页"},
    Text{"Page left", "向左翻页"},
    Text{"Page right", "向右翻页"},
    Text{"Scroll up", "向上滚动"},
    Text{"Scroll down", "向下滚动"},
    Text{"Scroll left", "向左滚动"},
    Text{"Scroll right", "向右滚动"},
    // The colour dialog.
    Text{"Select Color", "选择颜色"},
    Text{"&Basic colors", "基本颜色(&B)"},
    Text{"&Custom colors", "自定义颜色(&C)"},
    Text{"&Add to Custom Colors", "添加到自定义颜色(&A)"},
    Text{"&Pick Screen Color", "拾取屏幕颜色(&P)"},
    Text{"Cursor at %1, %2\nPress ESC to cancel", "光标位置 %1, %2\n按 ESC 取消"},
    Text{"Hu&e:", "色调(&E):"},
    Text{"&Sat:", "饱和度(&S):"},
    Text{"&Val:", "亮度(&V):"},
    Text{"&Red:", "红(&R):"},
    Text{"&Green:", "绿(&G):"},
    Text{"Bl&ue:", "蓝(&U):"},
    Text{"&HTML:", "HTML(&H):"},
    // File dialogs.
    Text{"Save As", "保存为"},
    Text{"Open as &read-only", "以只读方式打开(&R)"},
    Text{"Look in:", "查找范围:"},
    Text{"File &name:", "文件名(&N):"},
    Text{"Files of type:", "文件类型:"},
    Text{"Back", "后退"},
    Text{"Forward", "前进"},
    Text{"Parent Directory", "上级文件夹"},
    Text{"Create New Folder", "新建文件夹"},
    Text{"&New Folder", "新建文件夹(&N)"},
    Text{"New Folder", "新建文件夹"},
    Text{"List View", "列表"},
    Text{"Detail View", "详细信息"},
    Text{"&Rename", "重命名(&R)"},
    Text{"&Delete", "删除(&D)"},
    Text{"Show &hidden files", "显示隐藏文件(&H)"},
    Text{"Computer", "计算机"},
    Text{"Folder", "文件夹"},
    Text{"File", "文件"},
    Text{"%1 File", "%1 文件"},
    Text{"Drive", "驱动器"},
    Text{"All Files (*)", "所有文件 (*)"},
    Text{"Name", "名称"},
    Text{"Size", "大小"},
    Text{"Type", "类型"},
    Text{"Date Modified", "修改日期"},
    Text{"%1 already exists.\nDo you want to replace it?", "%1 已存在.\n是否替换?"},
    Text{"%1\nFile not found.\nPlease verify the correct file name was given.",
         "%1\n找不到文件.\n请检查文件名是否正确."},
    Text{"%1\nThe file name is not valid.", "%1\n文件名无效."},
    Text{"%1\nThe file name is too long.", "%1\n文件名太长."},
    Text{"%1\nDirectory not found.\nPlease verify the correct directory name was given.",
         "%1\n找不到文件夹.\n请检查文件夹名是否正确."},
};

}  // namespace

std::string_view DesktopText(std::string_view english) {
    if (UiLanguage() != kChinese) return {};
    const auto* found = std::find_if(kDesktopTexts.begin(), kDesktopTexts.end(),
                                     [&](const Text& row) { return row.english == english; });
    return found == kDesktopTexts.end() ? std::string_view() : found->chinese;
}

}  // namespace kestrel::i18n
