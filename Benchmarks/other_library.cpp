#include "other_library.h"

const std::string& functionLocalStatic() {
    static const std::string text = "All new dishes of the day";
    return text;
}
