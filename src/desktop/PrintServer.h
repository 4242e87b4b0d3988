#pragma once

#include <string>
#include <utility>
#include <vector>

#include "platform/Result.h"

namespace kestrel::desktop {

// Whether the print server, CUPS, answers within a second. Windows are painted meanwhile.
bool PrintServerAnswers();

// While it lives the desktop library, which asks the server on the window's thread and waits as
// long as it takes, is told that there is none.
class NoPrintServer {
  public:
    NoPrintServer();
    ~NoPrintServer();
    NoPrintServer(const NoPrintServer&) = delete;
    NoPrintServer& operator=(const NoPrintServer&) = delete;
};

struct PrintJob {
    // The printer's name, with "/" and an instance where it has one.
    std::string queue;
    std::string title;
    // Names and values.
    std::vector<std::pair<std::string, std::string>> options;
    std::string pdf;
};

// Hands the job to the server, whole or not at all. Fails with kPrinterStopped where it waits in
// the queue of a printer that is stopped. Windows are painted meanwhile.
Result<void> SendToPrinter(const PrintJob& job);

}  // namespace kestrel::desktop
