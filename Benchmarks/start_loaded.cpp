// The library is loaded, nothing of it used: what a first text cannot be cheaper than.
#include <Foundation/Host.h>

#include <iostream>

int main(int count, char**) {
    if (count > 1)
        Foundation::Host::reset();
    std::cout << std::string("Continue") << '\n';
}
