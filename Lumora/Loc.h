/* Lumora/Loc.h
 * The localization services for C: C11 and C++.
 * Text: UTF-8. Threads: every function from any thread.
 * Ownership: the caller calls NSRelease() for every NSString and NSNumber that a function
 * returns; arguments still belong to the caller. Null arguments are allowed. A function
 * returns null only when memory runs out; then, or when file descriptors run out, a text may be
 * empty. */
#ifndef LUMORA_LOC_H
#define LUMORA_LOC_H

// NOLINTBEGIN(modernize-deprecated-headers,modernize-use-using): C reads this too
#include <stdbool.h>
#include <stdint.h>

#ifdef __cplusplus
namespace Foundation {
class NSNumber;
}
typedef Foundation::NSNumber NSNumber;
extern "C" {
#else
typedef struct NSNumber NSNumber;
#endif
typedef struct NSString NSString;
typedef int64_t NSInteger;
typedef double CGFloat;
// NOLINTEND(modernize-deprecated-headers,modernize-use-using)

#define LUMORA_C_EXPORT __attribute__((visibility("default")))

/* Creates a string with a copy of `utf8`; null gives the empty string. */
LUMORA_C_EXPORT NSString* NSStringCreate(const char* utf8);
/* The NUL-terminated text, valid as long as `string` lives; "" for null. */
LUMORA_C_EXPORT const char* NSStringUTF8(const NSString* string);
LUMORA_C_EXPORT NSNumber* NSNumberCreateInteger(int64_t value);
LUMORA_C_EXPORT NSNumber* NSNumberCreateDouble(double value);
/* Releases an NSString or NSNumber that a function of this header returned. Call it once for each. */
LUMORA_C_EXPORT void NSRelease(const void* object);

/* The text of `key` in the current language, without formatting; the key itself when it has no text; the empty string
 * for null. */
LUMORA_C_EXPORT NSString* Loc(const NSString* key);
/* The number in the user's locale, without a plus sign; the empty string for null. */
LUMORA_C_EXPORT NSString* LocNumber(const NSNumber* number);
/* The same; with `needSign`, numbers without a minus sign have a plus sign. */
LUMORA_C_EXPORT NSString* LocNumberWithPositivePrefix(const NSNumber* number, bool needSign);
/* An age in years as a phrase: "25 years". */
LUMORA_C_EXPORT NSString* LocAge(NSInteger age);
/* A fraction as a percentage: 0.25 is "25%". legacyTrPercent() in Lumora/Localization.h says how it is written. */
LUMORA_C_EXPORT NSString* LocPercent(CGFloat value);
/* The same; with `showPlus`, positive values have a plus sign. */
LUMORA_C_EXPORT NSString* LocPercentSigned(CGFloat value, bool showPlus);

#ifdef __cplusplus
}
#endif

#endif
