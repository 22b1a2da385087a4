// Prints one Russian text of a Qt catalog and ends; start.py times the whole process.
#include <QTranslator>

#include <iostream>

int main() {
    QTranslator translator;
    if (translator.load(LUMORA_PEER_CATALOGS "/ru.qm"))
        std::cout << translator.translate("", "Continue").toStdString() << '\n';
}
