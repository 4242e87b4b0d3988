#include "windows/NamedControls.h"

#include "desktop/Text.h"

namespace kestrel::windows {

void NamedControls::AddToolTip(QWidget& control) {
    toolTips_[control.objectName().toStdString()] = [&control](const QString& text) {
        control.setToolTip(text);
        control.setAccessibleName(text.trimmed());
    };
}

void NamedControls::AddName(QWidget& control) {
    names_[control.objectName().toStdString()] = [&control](const QString& text) {
        control.setAccessibleName(text);
    };
}

void NamedControls::SetControlCaption(std::string_view control, std::string_view text) {
    Show(captions_, control, text);
}

void NamedControls::SetControlToolTip(std::string_view control, std::string_view text) {
    Show(toolTips_, control, text);
}

void NamedControls::SetControlName(std::string_view control, std::string_view text) {
    Show(names_, control, text);
}

void NamedControls::SetButtonToolTip(std::string_view key, std::string_view text) {
    toolbar_.SetToolTip(key, text);
}

void NamedControls::EnableButton(std::string_view key, bool enabled) {
    toolbar_.SetEnabled(key, enabled);
}

void NamedControls::Show(const ByName& controls, std::string_view control, std::string_view text) {
    const auto found = controls.find(control);
    if (found != controls.end()) found->second(desktop::ToText(text));
}

}  // namespace kestrel::windows
