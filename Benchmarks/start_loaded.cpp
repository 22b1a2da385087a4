// Is linked with Lumora and so loads it, but does not use it: a first text cannot take less time than this.
#include <iostream>

int main() {
    std::cout << std::string("Continue") << '\n';
}
