#include "desktop/LibraryTranslator.h"

#include <QLibraryInfo>

#include "desktop/Text.h"
#include "i18n/Language.h"
#include "i18n/Messages.h"

namespace kestrel::desktop {

QString LibraryTranslator::translate(const char* context, const char* sourceText,
                                     const char* disambiguation, int n) const {
    // Answered here too: a desktop's plugin may have brought translations of the system's language.
    if (i18n::UiLanguage() == i18n::kEnglish) return QString::fromUtf8(sourceText);
    std::call_once(loaded_, [this] {
        static_cast<void>(chinese_.load(QStringLiteral("qtbase_zh_CN"),
                                        QLibraryInfo::path(QLibraryInfo::TranslationsPath)));
    });
    QString text = chinese_.translate(context, sourceText, disambiguation, n);
    for (const i18n::Text& kind : i18n::kFileKinds) {
        if (text.isNull() && kind.english == sourceText) text = ToText(kind.chinese);
    }
    return text;
}

}  // namespace kestrel::desktop
