// Generated from the resources of the module Odd; do not edit.
#pragma once

#include "Foundation/Describable.h"
#include "Runtime/Export.h"
#include <cstdint>
#include <string>

namespace Odd::OddStrings::Localizable {

// Each of these names is unusual in another way.
// "continue" = "Continue"
LUMORA_EXPORT const std::string& continue_();

// "N/A" = "Not available"
LUMORA_EXPORT const std::string& na();

// "MSG" = "Message"
LUMORA_EXPORT const std::string& msg();

// "Compressing..." = "Compressing"
LUMORA_EXPORT const std::string& compressing();

// "You can't set a price that exceeds %@" = "The price can't exceed %@"
LUMORA_EXPORT std::string youCanTSetAPriceThatExceeds(const ::Foundation::Describable& value);

// "Invoice №" = "Invoice No."
LUMORA_EXPORT const std::string& invoiceNo();

// "日本" = "Japan"
LUMORA_EXPORT const std::string& 日本();

// "plain" = "Must not clash with a name in the generated code"
LUMORA_EXPORT const std::string& plain();

// "detail" = "Nor must this one"
LUMORA_EXPORT const std::string& detail();

} // namespace Odd::OddStrings::Localizable

namespace Odd::OddStrings::Localizable::Сhatlist {

// "Сhatlist.Photo" = "Photo"
LUMORA_EXPORT const std::string& photo();

} // namespace Odd::OddStrings::Localizable::Сhatlist

namespace Odd::OddStrings::Localizable::_10ExerciseStraight {

// "10ExerciseStraight.Delete" = "Delete"
LUMORA_EXPORT const std::string& delete_();

} // namespace Odd::OddStrings::Localizable::_10ExerciseStraight

namespace Odd::OddStrings::Localizable::Foundation {

// "Foundation.Describable" = "The group has the name of a namespace of the platform"
LUMORA_EXPORT const std::string& describable();

} // namespace Odd::OddStrings::Localizable::Foundation

namespace Odd::OddStrings::Localizable::Runtime {

// "Runtime.std" = "So has this one, and the accessor that of the standard library"
LUMORA_EXPORT const std::string& std();

} // namespace Odd::OddStrings::Localizable::Runtime

namespace Odd::OddStrings::Localizable::Widget::Fitness::Inactive {

// "widget.fitness.inactive.after_days" = "Inactive for %d days"
LUMORA_EXPORT std::string afterDays(std::int64_t value);

} // namespace Odd::OddStrings::Localizable::Widget::Fitness::Inactive

namespace Odd::OddStrings::Localizable {

// Back at the root, whose namespace is opened again.
// "errno" = "Error number"
LUMORA_EXPORT const std::string& errno_();

// For translators: a comment is part of the accessor's documentation, and one of more than a hundred and twenty
//    characters is broken into lines.
// It may have lines of its own, and end in a backslash: \.
// "commented" = "C:\ and D:\"
LUMORA_EXPORT const std::string& commented();

// Texts that are dangerous in a comment, and keys that are dangerous in a literal.
// "ends in a backslash" = "C:\"
LUMORA_EXPORT const std::string& endsInABackslash();

// "closes */ a comment" = "/* "quoted" */"
LUMORA_EXPORT const std::string& closesAComment();

// "asks ??/ twice ??=" = "What??/"
LUMORA_EXPORT const std::string& asksTwice();

// "hides \u{202E}" = "a\u{200B}b\u{202E}c\td"
LUMORA_EXPORT const std::string& hides();

// "key "quoted" \ é 1" = "on\ntwo lines"
LUMORA_EXPORT const std::string& keyQuotedÉ1();

// "long" = "A text of more than a hundred characters is cut in the comment, which only has to help readers to re…"
LUMORA_EXPORT const std::string& long_();

// Placeholders.
// "percent" = "100%%"
LUMORA_EXPORT const std::string& percent();

// "two" = "%@ of %@"
LUMORA_EXPORT std::string two(const ::Foundation::Describable& first, const ::Foundation::Describable& second);

// "swapped" = "%2$@ in %1$lld"
LUMORA_EXPORT std::string swapped(std::int64_t first, const ::Foundation::Describable& second);

// "same" = "%1$@, %1$@"
LUMORA_EXPORT std::string same(const ::Foundation::Describable& value);

// "width" = "%*d"
LUMORA_EXPORT std::string width(std::int64_t first, std::int64_t second);

// "floating" = "%.1f km"
LUMORA_EXPORT std::string floating(double value);

// "six words" = "%@ %@ %@ %@ %@ %@"
LUMORA_EXPORT std::string sixWords(const ::Foundation::Describable& first, const ::Foundation::Describable& second,
                                   const ::Foundation::Describable& third, const ::Foundation::Describable& fourth,
                                   const ::Foundation::Describable& fifth, const ::Foundation::Describable& argument6);

} // namespace Odd::OddStrings::Localizable
