#include <csignal>
#include <iostream>

#include "script/run_script.h"

int main() {
#ifdef SIGPIPE
    std::signal(SIGPIPE, SIG_IGN);  // a closed output is told, not died of
#endif
    std::ios::sync_with_stdio(false);
    return RunScript(std::cin, std::cout, std::cerr);
}
