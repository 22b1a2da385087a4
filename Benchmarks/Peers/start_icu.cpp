// Prints one Russian text of an ICU resource bundle and ends; start.py times the whole process.
#include <iostream>
#include <unicode/resbund.h>

int main() {
    UErrorCode status = U_ZERO_ERROR;
    const icu::ResourceBundle bundle(LUMORA_PEER_CATALOGS, "ru", status);
    std::string text;
    std::cout << bundle.getStringEx("Continue", status).toUTF8String(text) << '\n';
}
