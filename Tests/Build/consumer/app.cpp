// Prints a text, a formatted number and the path of the bundle.
#include <Lumora/Lumora.h>

#include <cstdio>

int main() {
    Foundation::Host::setPreferredLanguages({"ru"});
    Foundation::Host::setCurrentLocale("ru_RU");
    std::printf("%s\n%s\n%s\n", Lumora::LumoraStrings::Localizable::continue_().c_str(),
                Lumora::LumoraStrings::Localizable::locNumber(1234567, true).c_str(),
                Lumora::LumoraResources::bundle().bundlePath().c_str());
}
