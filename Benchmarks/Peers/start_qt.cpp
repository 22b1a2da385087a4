// Starts, prints one text of a Qt catalog, and ends.
#include <QTranslator>

#include <iostream>

int main() {
    QTranslator translator;
    if (translator.load(LUMORA_PEER_CATALOGS "/ru.qm"))
        std::cout << translator.translate("", "Continue").toStdString() << '\n';
}
