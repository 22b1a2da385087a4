// Prints one Russian text of a gettext catalog with Boost.Locale and ends; start.py times the whole process.
#include <boost/locale.hpp>
#include <iostream>

int main() {
    boost::locale::generator generator;
    generator.add_messages_path(LUMORA_PEER_CATALOGS);
    generator.add_messages_domain("boost");
    std::cout << boost::locale::translate("Continue").str(generator("ru_RU.UTF-8")) << '\n';
}
