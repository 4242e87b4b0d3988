#pragma once

#include <QObject>
#include <QSessionManager>
#include <QSocketNotifier>
#include <functional>

namespace kestrel::desktop {

// Ends the program in order, and without a question, on a hang-up, interrupt or termination signal
// and when the desktop's session is over. Before that the session asks whether it may end.
class EndOfSession : public QObject {
  public:
    // Whether the session may end; the flag tells whether the user may be asked now.
    using MayEnd = std::function<bool(bool mayAsk)>;

    explicit EndOfSession(MayEnd mayEnd);

  private:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void CommitData(QSessionManager& manager);

    MayEnd mayEnd_;
    QSocketNotifier signals_;
};

}  // namespace kestrel::desktop
