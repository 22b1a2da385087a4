// Loads Lumora without using it: a first text cannot take less time than this.
#include <iostream>

int main() {
    std::cout << std::string("Continue") << '\n';
}
