#include "desktop/PrintServer.h"

#include <cups/cups.h>

#include <atomic>
#include <memory>

#include "desktop/OffThread.h"
#include "i18n/Messages.h"

namespace kestrel::desktop {

namespace {

using namespace std::chrono_literals;

constexpr std::chrono::milliseconds kPatienceToList = 1s;
constexpr std::chrono::milliseconds kPatienceToPrint = 10s;

template <auto kFree>
struct Freed {
    template <class Object>
    void operator()(Object* object) const {
        kFree(object);
    }
};
using Connection = std::unique_ptr<http_t, Freed<httpClose>>;
using ServerAnswer = std::unique_ptr<ipp_t, Freed<ippDelete>>;

// A connection on which no answer takes longer. Passwords are not asked for: the library would do
// so on the terminal.
Connection Connect(std::chrono::milliseconds patience) {
    cupsSetPasswordCB2([](auto...) -> const char* { return nullptr; }, nullptr);
    const int time = static_cast<int>(patience.count());
    Connection server(httpConnect2(cupsServer(), ippPort(), nullptr, AF_UNSPEC, cupsEncryption(), 1,
                                   time, nullptr));
    if (server) {
        httpSetTimeout(
            server.get(), std::chrono::duration<double>(patience).count(),
            [](http_t* /*server*/, void* /*data*/) { return 0; }, nullptr);
    }
    return server;
}

bool Ask() {
    const Connection server = Connect(kPatienceToList);
    if (!server) return false;
    // Whatever it answers.
    const ServerAnswer answer(
        cupsDoRequest(server.get(), ippNewRequest(IPP_OP_CUPS_GET_DEFAULT), "/"));
    return answer != nullptr;
}

tl::unexpected<Error> Failure(const i18n::Text& reason) {
    return Fail(cupsLastError(), std::string(reason.Now()));
}

// Why the last request of this thread failed.
tl::unexpected<Error> Failure() {
    switch (cupsLastError()) {
        case IPP_STATUS_ERROR_NOT_ACCEPTING_JOBS:
            return Failure(i18n::kPrinterRejects);
        case IPP_STATUS_ERROR_SERVICE_UNAVAILABLE:
            return Failure(i18n::kPrintServerIsSilent);
        default:
            return Fail(cupsLastError(), cupsLastErrorString());
    }
}

using Printer =
    std::unique_ptr<cups_dest_t, Freed<[](cups_dest_t* one) { cupsFreeDests(1, one); }>>;

Printer Find(const Connection& server, const std::string& name) {
    return Printer(cupsGetNamedDest(server.get(), name.c_str(), nullptr));
}

bool IsStopped(const cups_dest_t& printer) {
    const char* state = cupsGetOption("printer-state", printer.num_options, printer.options);
    return state != nullptr && state == std::to_string(IPP_PSTATE_STOPPED);
}

bool SendDocument(http_t* server, const char* printer, int id, const PrintJob& job) {
    return cupsStartDocument(server, printer, id, job.title.c_str(), CUPS_FORMAT_PDF, 1) ==
               HTTP_STATUS_CONTINUE &&
           cupsWriteRequestData(server, job.pdf.data(), job.pdf.size()) == HTTP_STATUS_CONTINUE &&
           cupsFinishDocument(server, printer) <= IPP_STATUS_OK_CONFLICTING;
}

// `wanted` turns false when nobody waits for it any more: what is told as lost must not be printed.
Result<void> Send(const PrintJob& job, const std::atomic<bool>& wanted) {
    if (!Ask()) return Failure(i18n::kPrintServerIsSilent);
    const Connection server = Connect(kPatienceToPrint);
    if (!server) return Failure(i18n::kPrintServerIsSilent);
    const std::string name = job.queue.substr(0, job.queue.find('/'));
    if (!Find(server, name)) return Failure(i18n::kPrinterIsGone);
    cups_option_t* options = nullptr;
    int count = 0;
    for (const auto& [option, value] : job.options)
        count = cupsAddOption(option.c_str(), value.c_str(), count, &options);
    const int id = cupsCreateJob(server.get(), name.c_str(), job.title.c_str(), count, options);
    cupsFreeOptions(count, options);
    if (id == 0) return Failure();
    if (!wanted || !SendDocument(server.get(), name.c_str(), id, job) || !wanted) {
        const tl::unexpected<Error> failure = Failure();
        cupsCancelJob2(server.get(), name.c_str(), id, 0);
        return failure;
    }
    const Printer printer = Find(server, name);
    if (printer && IsStopped(*printer)) return Fail(kPrinterStopped, "The printer is stopped");
    return {};
}

}  // namespace

bool PrintServerAnswers() {
    return AskOffThread<bool>(Ask, kPatienceToList).value_or(false);
}

NoPrintServer::NoPrintServer() {
    cupsSetServer("/dev/null/cups");
}

NoPrintServer::~NoPrintServer() {
    cupsSetServer(nullptr);
}

Result<void> SendToPrinter(const PrintJob& job) {
    const auto wanted = std::make_shared<std::atomic<bool>>(true);
    const auto sent =
        AskOffThread<Result<void>>([job, wanted] { return Send(job, *wanted); }, kPatienceToPrint);
    if (sent) return *sent;
    *wanted = false;
    return Failure(i18n::kPrintServerIsSilent);
}

}  // namespace kestrel::desktop
