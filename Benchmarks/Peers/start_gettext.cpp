// Prints one text of a gettext catalog and ends; start.py times the whole process.
#include <clocale>
#include <iostream>
#include <libintl.h>

int main() {
    std::setlocale(LC_ALL, "");
    bindtextdomain("texts", LUMORA_PEER_CATALOGS);
    std::cout << std::string(dgettext("texts", "Continue")) << '\n'; // the other programs make a std::string too
}
