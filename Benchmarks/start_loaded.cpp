// The library is loaded but not used: the minimum time for a first text.
#include <Foundation/Host.h>

#include <iostream>

int main(int count, char**) {
    if (count > 1)
        Foundation::Host::reset();
    std::cout << std::string("Continue") << '\n';
}
