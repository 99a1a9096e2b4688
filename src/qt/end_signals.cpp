#include "qt/end_signals.h"

#include <array>
#include <csignal>
#include <sys/socket.h>
#include <unistd.h>

#include <QSocketNotifier>

namespace velmora::qt {

namespace {

constexpr std::array signals = {SIGTERM, SIGINT, SIGHUP};

// A handler may do next to nothing: it writes a byte here, and the event loop reads it.
std::array<int, 2> ends = {-1, -1};

void noteSignal(int) {
  const char byte = 1;
  if (write(ends[0], &byte, 1) < 0) return;  // a full pipe already says it
}

}  // namespace

EndSignals::EndSignals(std::function<void()> onEnd) : onEnd_(std::move(onEnd)) {
  if (socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0, ends.data()) != 0) {
    notifier_ = nullptr;
    return;
  }
  notifier_ = new QSocketNotifier(ends[1], QSocketNotifier::Read, this);
  connect(notifier_, &QSocketNotifier::activated, this, [this] {
    char bytes[16];
    if (read(ends[1], bytes, sizeof bytes) > 0) onEnd_();
  });
  for (const int signal : signals) std::signal(signal, noteSignal);
}

EndSignals::~EndSignals() {
  if (!notifier_) return;
  for (const int signal : signals) std::signal(signal, SIG_DFL);
  delete notifier_;
  for (int& end : ends) {
    close(end);
    end = -1;
  }
}

}  // namespace velmora::qt
