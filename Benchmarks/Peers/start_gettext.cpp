// Prints one Russian text of a gettext catalog and ends; start.py times the whole process.
#include <clocale>
#include <iostream>
#include <libintl.h>

int main() {
    std::setlocale(LC_ALL, ""); // start.py sets LANGUAGE
    bindtextdomain("texts", LUMORA_PEER_CATALOGS);
    std::cout << std::string(dgettext("texts", "Continue")) << '\n'; // a std::string as in the other start_*.cpp
}
