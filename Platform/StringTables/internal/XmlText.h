// StringTables/internal/XmlText.h
// Writes texts as XML.
// Text: UTF-8. Threads: any; no state.
#pragma once

#include <string>
#include <string_view>

namespace StringTables::internal {

// Whether XML can represent the text, which is UTF-8: below U+0020 it has only tabs and line breaks (LF, CR), and it
// has neither U+FFFE nor U+FFFF.
[[nodiscard]] bool canBeXml(std::string_view text) noexcept;

// Escapes `text` as element content. Carriage returns become numeric references; with `inAscii`, so do characters that
// are not ASCII.
[[nodiscard]] std::string xmlText(std::string_view text, bool inAscii = false);

// `text` with a space inside every `mark`, two characters that a comment cannot contain ("--" in XML).
[[nodiscard]] std::string withoutMark(std::string_view text, std::string_view mark);

} // namespace StringTables::internal
