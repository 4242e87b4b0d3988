#include "commands/Recovery.h"

#include <utility>

#include "document/JournalRecords.h"
#include "editing/WorkRecords.h"
#include "i18n/Messages.h"

namespace kestrel::commands {

using services::Answer;

void Recovery::Offer() {
    for (document::EndedJournal& journal : journals_.Ended()) {
        const auto content = journal.Content();
        // Unreadable for now, or of another version.
        if (!content || !document::IsJournal(*content)) continue;
        editing::ReplayedWork replayed = editing::Replay(*content);
        if (!replayed.work.modified) {
            journal.Remove();
            continue;
        }
        const Answer answer =
            boxes_.Ask(services::BoxIcon::Question, services::BoxButtons::YesNo, Answer::Yes,
                       std::string(i18n::kRestoreWork.Now()), std::string(i18n::kProgramName));
        if (answer == Answer::No) journal.SetAside();
        // Otherwise the program ends while it asks.
        if (answer != Answer::Yes) return;
        editor_.Restore(replayed.work, std::move(replayed.history));
        // From here on it is told by the journal of this run.
        if (log_.Keeps()) journal.Remove();
        return;
    }
}

}  // namespace kestrel::commands
