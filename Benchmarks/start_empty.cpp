// Starts, prints a text without any library for texts, and ends. It makes a std::string, as the programs that it is
// compared with do.
#include <iostream>

int main() {
    std::cout << std::string("Continue") << '\n';
}
