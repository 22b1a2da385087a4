/* The localization services from C. Prints a text, two numbers, an age, two percentages, and the text of a null key. */
#include <Lumora/Loc.h>
#include <stdio.h>

/* Prints a text and releases it. */
static void show(const char* label, NSString* text) {
    printf("%-10s %s\n", label, NSStringUTF8(text));
    NSRelease(text);
}

int main(void) {
    NSString* key = NSStringCreate("SportFeed");
    show("text", Loc(key));
    NSRelease(key);

    NSNumber* kilograms = NSNumberCreateDouble(1234.5);
    show("number", LocNumber(kilograms));
    show("signed", LocNumberWithPositivePrefix(kilograms, true));
    NSRelease(kilograms);

    show("age", LocAge(25));
    show("percent", LocPercent(0.25));
    show("signed", LocPercentSigned(0.25, true));
    show("nothing", Loc(NULL));
    return 0;
}
