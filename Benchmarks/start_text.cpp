#include <Lumora/LumoraStrings.h>

#include <iostream>

int main() {
    std::cout << Lumora::LumoraStrings::Localizable::continue_() << '\n';
}
