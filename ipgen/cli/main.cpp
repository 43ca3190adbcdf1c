#include "ipgen/cli/commandline.h"

#include <csignal>
#include <initializer_list>
#include <unistd.h>

namespace {

constexpr int faultStatus = 70;

#ifdef __SANITIZE_ADDRESS__

/// The sanitizer has better words for a crash.
void catchFaults() {}

#else

/// A crash ends with the status of a fault, and with a line that says so.
void onFault(int number) {
    const char front[] = "ipgen: fault: the program crashed, signal ";
    char digits[] = "00\n";
    digits[0] = static_cast<char>('0' + number / 10);
    digits[1] = static_cast<char>('0' + number % 10);
    const bool told = ::write(STDERR_FILENO, front, sizeof front - 1) > 0 &&
                      ::write(STDERR_FILENO, digits, sizeof digits - 1) > 0;
    static_cast<void>(told);
    ::_exit(faultStatus);
}

void catchFaults() {
    static char stack[65536]; // a fault may be the end of the usual one
    stack_t other{};
    other.ss_sp = stack;
    other.ss_size = sizeof stack;
    ::sigaltstack(&other, nullptr);
    struct sigaction action {};
    action.sa_handler = onFault;
    action.sa_flags = SA_ONSTACK;
    for (const int number : {SIGSEGV, SIGBUS, SIGFPE, SIGILL, SIGABRT}) {
        ::sigaction(number, &action, nullptr);
    }
}

#endif

} // namespace

int main(int argc, char** argv) {
    catchFaults();
    // A closed pipe and a file-size limit are failed writes, told like any other.
    std::signal(SIGPIPE, SIG_IGN);
    std::signal(SIGXFSZ, SIG_IGN);
    return Ipgen::runCommandLine(argc, argv);
}
