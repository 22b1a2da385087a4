#include <iostream>

int main() {
    std::cout << std::string("Continue") << '\n';
}
