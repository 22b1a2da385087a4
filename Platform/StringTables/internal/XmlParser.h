// StringTables/internal/XmlParser.h
// expat over the source of a table.
// Text: handlers get UTF-8, whatever the encoding of the source.
#pragma once

#include "StringTables/internal/Contents.h"
#include <exception>
#include <expat.h>
#include <memory>
#include <new> // std::bad_alloc

namespace StringTables::internal {

class XmlParser {
public:
    // `reader` is what expat hands to its handlers.
    XmlParser(const Contents& contents, void* reader)
        : parser_(XML_ParserCreate(contents.isUtf8 ? "UTF-8" : nullptr)), source_(contents.source),
          begin_(source_.find('<', contents.begin)) {
        if (!parser_)
            throw std::bad_alloc();
        XML_SetUserData(parser_.get(), reader);
    }

    XML_Parser get() const noexcept { return parser_.get(); }
    // Of what is being handled, in the source. expat's own index is -1 before it has read anything.
    std::size_t offset() const noexcept {
        return begin_ + static_cast<std::size_t>(std::max<XML_Index>(XML_GetCurrentByteIndex(parser_.get()), 0));
    }
    void stop() noexcept {
        XML_StopParser(parser_.get(), XML_FALSE);
        isStopped_ = true;
    }

    // Runs a handler's work. expat is written in C, so an exception waits until parse() can throw it. expat may call
    // handlers once more after a stop; they do nothing.
    template <class Work> void handle(Work work) noexcept {
        if (isStopped_)
            return;
        try {
            work();
        } catch (...) {
            thrown_ = std::current_exception();
            stop();
        }
    }

    // Whether the source is well-formed XML and nothing stopped the parser.
    [[nodiscard]] bool parse() {
        const std::string_view document = source_.substr(begin_);
        const XML_Status status = XML_Parse(get(), document.data(), static_cast<int>(document.size()), XML_TRUE);
        if (thrown_)
            std::rethrow_exception(thrown_);
        if (!isStopped_ && status != XML_STATUS_OK && XML_GetErrorCode(get()) == XML_ERROR_NO_MEMORY)
            throw std::bad_alloc();
        return status == XML_STATUS_OK;
    }

private:
    struct Free {
        void operator()(XML_Parser parser) const noexcept { XML_ParserFree(parser); }
    };
    std::unique_ptr<std::remove_pointer_t<XML_Parser>, Free> parser_;
    std::string_view source_;
    std::size_t begin_;
    bool isStopped_ = false;
    std::exception_ptr thrown_;
};

} // namespace StringTables::internal
