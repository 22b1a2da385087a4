// Prints one text of Lumora and ends; start.py times the whole process.
#include <Lumora/LumoraStrings.h>

#include <iostream>

int main() {
    std::cout << Lumora::LumoraStrings::Localizable::continue_() << '\n';
}
