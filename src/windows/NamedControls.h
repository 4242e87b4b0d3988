#pragma once

#include <QString>
#include <QWidget>
#include <functional>
#include <map>
#include <string>

#include "commands/MainWindow.h"
#include "windows/widgets/ToolBar.h"

namespace kestrel::windows {

// The controls of a window by the names that their texts are listed under.
class NamedControls : public commands::MainControls {
  public:
    using ShowText = std::function<void(const QString& text)>;

    explicit NamedControls(widgets::ToolBar& toolbar) : toolbar_(toolbar) {}

    void AddCaption(const std::string& control, const ShowText& show) { captions_[control] = show; }
    // Under the name of its object. Its tool tip is its name for screen readers, too.
    void AddToolTip(QWidget& control);
    void AddToolTip(const std::string& control, const ShowText& show) { toolTips_[control] = show; }
    void AddName(QWidget& control);

    void SetControlCaption(std::string_view control, std::string_view text) override;
    void SetControlToolTip(std::string_view control, std::string_view text) override;
    void SetControlName(std::string_view control, std::string_view text) override;
    void SetButtonToolTip(std::string_view key, std::string_view text) override;
    void EnableButton(std::string_view key, bool enabled) override;

  private:
    using ByName = std::map<std::string, ShowText, std::less<>>;

    static void Show(const ByName& controls, std::string_view control, std::string_view text);

    widgets::ToolBar& toolbar_;
    ByName captions_;
    ByName toolTips_;
    ByName names_;
};

}  // namespace kestrel::windows
