#include <iostream>

#include "script/commands.h"

int main() {
    std::ios::sync_with_stdio(false);
    return RunScript(std::cin, std::cout, std::cerr);
}
