#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "services/DesktopDialogs.h"

namespace kestrel::test {

// A desktop on which the user chooses `choice`, `color` and `printer`; what is empty is
// cancelled, or fails for the reason `error`.
class ScriptedDialogs : public services::DesktopDialogs {
  public:
    std::int32_t GetOpenFileName(services::FileRecord& record) override {
        opens.push_back(record);
        return ChooseFile(record);
    }
    std::int32_t GetSaveFileName(services::FileRecord& record) override {
        saves.push_back(record);
        return ChooseFile(record);
    }
    std::int32_t ChooseColor(services::ColorRecord& record) override {
        colors.push_back(record);
        if (!color) return 0;
        record.color = *color;
        record.customColors[3] = *color;
        return services::kConfirmed;
    }
    std::int32_t ChoosePrinter(services::PrinterRecord& record) override {
        printers.push_back(record);
        if (!printer) return 0;
        record.choice = *printer;
        return services::kConfirmed;
    }
    std::int32_t CommDlgExtendedError() const override { return error; }
    gdi::COLORREF GetSysColor(int /*role*/) const override { return 0; }

    std::string choice;
    std::optional<gdi::COLORREF> color;
    std::optional<services::ChosenPrinter> printer;
    std::int32_t error = 0;
    // What the desktop changes in a confirmed file record beyond the name.
    std::function<void(services::FileRecord& record)> alsoChanges;
    // What was asked for.
    std::vector<services::FileRecord> opens;
    std::vector<services::FileRecord> saves;
    std::vector<services::ColorRecord> colors;
    std::vector<services::PrinterRecord> printers;

  private:
    std::int32_t ChooseFile(services::FileRecord& record) const {
        if (choice.empty()) return 0;
        record.file = choice;
        record.fileTitle = choice.substr(choice.find_last_of('/') + 1);
        if (alsoChanges) alsoChanges(record);
        return services::kConfirmed;
    }
};

}  // namespace kestrel::test
