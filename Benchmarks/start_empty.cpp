// Starts, prints a text without any library for texts, and ends.
#include <iostream>

int main() {
    std::cout << std::string("Continue") << '\n';
}
