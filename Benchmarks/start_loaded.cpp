// The library is loaded but not used: the minimum time for a first text.
#include <iostream>

int main() {
    std::cout << std::string("Continue") << '\n';
}
