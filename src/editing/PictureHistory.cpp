#include "editing/PictureHistory.h"

#include <utility>

namespace kestrel::editing {

void PictureHistory::Do(HistoryAct act, PictureDifference change) {
    switch (act) {
        case HistoryAct::Cleared:
            *this = {};
            break;
        case HistoryAct::RedoCleared:
            redo_.clear();
            break;
        case HistoryAct::Recorded:
            redo_.clear();
            change.ApplyTo(present_);
            if (std::exchange(begun_, true)) undo_.push_back(std::move(change));
            break;
        case HistoryAct::Back:
            Go(undo_, redo_, std::move(change));
            break;
        case HistoryAct::Forward:
            Go(redo_, undo_, std::move(change));
            break;
        case HistoryAct::RedoHeld:
            redo_.push_back(std::move(change));
            break;
    }
}

void PictureHistory::Go(Steps& from, Steps& to, PictureDifference change) {
    if (!from.empty()) {
        change = std::move(from.back());
        from.pop_back();
    }
    change.ApplyTo(present_);
    to.push_back(std::move(change));
}

}  // namespace kestrel::editing
