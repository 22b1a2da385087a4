// Starts, prints a text without any library for texts, and ends. All these programs make a std::string of their text.
#include <iostream>

int main() {
    std::cout << std::string("Continue") << '\n';
}
