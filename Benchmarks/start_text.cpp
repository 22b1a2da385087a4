// Starts, prints one text of Lumora, and ends.
#include <Lumora/LumoraStrings.h>

#include <iostream>

int main() {
    std::cout << Lumora::LumoraStrings::Localizable::continue_() << '\n';
}
