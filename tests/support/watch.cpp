#include "watch.h"

#include <array>
#include <csignal>
#include <cstdio>
#include <unistd.h>

namespace support {
namespace {

constexpr unsigned patienceInSeconds = 60;
std::array<char, 2048> currentCall{};

void dieInCall(int signal) {
    const char *const what = signal == SIGALRM ? "\nA call does not come back: " : "\nA call crashed: ";
    for (const char *text : {what, static_cast<const char *>(currentCall.data()), "\n0 passed, 1 failed\n"})
        if (write(STDOUT_FILENO, text, std::char_traits<char>::length(text)) < 0) break;
    _exit(1);
}

} // namespace

void watchCalls() {
    for (const int signal : {SIGSEGV, SIGBUS, SIGILL, SIGFPE, SIGALRM}) std::signal(signal, dieInCall);
}

void announce(const std::string &call) {
    std::snprintf(currentCall.data(), currentCall.size(), "%s", call.c_str());
    alarm(patienceInSeconds);
}

} // namespace support
