#include "qt/sesja.h"

#include <QFileDialog>
#include <QSocketNotifier>
#include <QWidget>

#include <csignal>

#include <sys/socket.h>
#include <unistd.h>

namespace dorva {
namespace {

// A signal handler may do very little: it writes a byte into one end of this pair, and the event loop reads the other.
int ends[2] = {-1, -1};

void onSignal(int) {
    const char byte = 1;
    [[maybe_unused]] const auto written = ::write(ends[0], &byte, 1);
}

} // namespace

// Its settings go to /dev/null (see setUpApplication).
void endFileDialog(QFileDialog* dialog) {
    delete dialog;
}

void storeAtSessionEnd(QWidget& window) {
    if (ends[0] < 0 && ::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends) != 0)
        return;
    auto* notifier = new QSocketNotifier(ends[1], QSocketNotifier::Read, &window);
    QObject::connect(notifier, &QSocketNotifier::activated, &window, [&window] {
        char byte = 0;
        [[maybe_unused]] const auto count = ::read(ends[1], &byte, 1);
        window.close();
    });
    struct sigaction action {};
    action.sa_handler = onSignal;
    action.sa_flags = SA_RESTART;
    for (int signal : {SIGTERM, SIGINT, SIGHUP})
        ::sigaction(signal, &action, nullptr);
}

} // namespace dorva
