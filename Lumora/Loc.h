/* Lumora/Loc.h
 * The localization services for C: C11 and C++.
 * Text: UTF-8. Threads: every function from any thread.
 * Ownership: whatever a function returns belongs to its caller, who gives it back with NSRelease(); arguments stay the
 * caller's. A null argument is harmless. A function returns null only when memory is out. */
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

/* A text object with a copy of `utf8`; null makes the empty text. */
LUMORA_C_EXPORT NSString* NSStringCreate(const char* utf8);
/* The text, ended by a NUL, as long as `string` lives; "" for null. */
LUMORA_C_EXPORT const char* NSStringUTF8(const NSString* string);
LUMORA_C_EXPORT NSNumber* NSNumberCreateInteger(int64_t value);
LUMORA_C_EXPORT NSNumber* NSNumberCreateDouble(double value);
/* Gives back what one of these functions returned, once. */
LUMORA_C_EXPORT void NSRelease(const void* object);

/* The text of `key` in the language in force, its placeholders as they stand; the key itself when it has none; the
 * empty text for null. */
LUMORA_C_EXPORT NSString* Loc(const NSString* key);
/* The number in the user's locale, without a plus sign; the empty text for null. */
LUMORA_C_EXPORT NSString* LocNumber(const NSNumber* number);
/* The same, with a plus sign before what is not negative if `needSign` says so. */
LUMORA_C_EXPORT NSString* LocNumberWithPositivePrefix(const NSNumber* number, bool needSign);
/* An age in years, in words. */
LUMORA_C_EXPORT NSString* LocAge(NSInteger age);
/* A fraction as a percentage: 0.25 is "25%". */
LUMORA_C_EXPORT NSString* LocPercent(CGFloat value);
/* The same, with a plus sign before what is above zero if `showPlus` says so. */
LUMORA_C_EXPORT NSString* LocPercentSigned(CGFloat value, bool showPlus);

#ifdef __cplusplus
}
#endif

#endif
