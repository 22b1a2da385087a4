// Starts, prints one text of a gettext catalog, and ends.
#include <clocale>
#include <iostream>
#include <libintl.h>

int main() {
    std::setlocale(LC_ALL, "");
    bindtextdomain("texts", LUMORA_PEERS);
    std::cout << std::string(dgettext("texts", "Continue")) << '\n'; // a std::string, as in the other programs
}
