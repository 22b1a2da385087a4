// Parses XML with expat, in the plug-in lumora-xml.so and in programs that link StringTables statically.
#include "StringTables/internal/XmlParser.h"

#include <algorithm>
#include <exception>
#include <expat.h>
#include <memory>
#include <new> // std::bad_alloc

namespace StringTables::internal {

namespace {

class Parser {
public:
    Parser(std::string_view source, std::size_t begin, bool isUtf8, XmlHandler& handler)
        : expat_(XML_ParserCreate(isUtf8 ? "UTF-8" : nullptr)), source_(source), begin_(begin), handler_(handler) {
        if (!expat_)
            throw std::bad_alloc();
        XML_SetUserData(expat_.get(), this);
        setContentHandlers();
        setDeclarationHandlers();
    }

    XmlFault parse() {
        const std::string_view document = source_.substr(begin_);
        // A source that was UTF-16 has at most 1.5 * Table::maxBytes, which still fits into an int.
        const XML_Status status = XML_Parse(expat_.get(), document.data(), static_cast<int>(document.size()), XML_TRUE);
        if (thrown_)
            std::rethrow_exception(thrown_);
        if (!isStopped_ && status != XML_STATUS_OK) {
            const XML_Error error = XML_GetErrorCode(expat_.get());
            if (error == XML_ERROR_NO_MEMORY)
                throw std::bad_alloc();
            stop(XML_ErrorString(error));
        }
        return std::move(fault_);
    }

private:
    struct Free {
        void operator()(XML_Parser parser) const noexcept { XML_ParserFree(parser); }
    };

    void setContentHandlers();
    void setDeclarationHandlers();

    // Runs the body of a handler. Exceptions must not pass through expat, which is C code: parse() rethrows them. After
    // stop(), expat may call more handlers; they do nothing.
    template <class Work> static void handle(void* self, Work work) noexcept {
        auto& parser = *static_cast<Parser*>(self);
        if (parser.isStopped_)
            return;
        try {
            if (std::string wrong = work(parser); !wrong.empty())
                parser.stop(std::move(wrong));
        } catch (...) {
            parser.thrown_ = std::current_exception();
            parser.stop({});
        }
    }

    void stop(std::string message, std::string entity = {}) {
        fault_ = {std::move(message), place().begin, std::move(entity)};
        isStopped_ = true;
        XML_StopParser(expat_.get(), XML_FALSE);
    }

    // The position of the current construct. expat's index is -1 before it has read anything.
    XmlPlace place() const noexcept {
        const auto index = static_cast<std::size_t>(std::max<XML_Index>(XML_GetCurrentByteIndex(expat_.get()), 0));
        const std::size_t begin = begin_ + index;
        return {begin, begin + static_cast<std::size_t>(XML_GetCurrentByteCount(expat_.get()))};
    }

    std::unique_ptr<std::remove_pointer_t<XML_Parser>, Free> expat_;
    std::string_view source_;
    std::size_t begin_;
    XmlHandler& handler_;
    XmlFault fault_;
    std::exception_ptr thrown_;
    bool isStopped_ = false;
};

void Parser::setContentHandlers() {
    XML_SetElementHandler(
        expat_.get(),
        [](void* self, const char* name, const char** attributes) {
            handle(self, [=](Parser& parser) { return parser.handler_.open(name, attributes, parser.place()); });
        },
        [](void* self, const char*) {
            handle(self, [](Parser& parser) { return parser.handler_.close(parser.place()); });
        });
    XML_SetCharacterDataHandler(expat_.get(), [](void* self, const char* text, int size) {
        const std::string_view piece(text, static_cast<std::size_t>(size));
        handle(self, [=](Parser& parser) { return parser.handler_.characters(piece); });
    });
    XML_SetCommentHandler(expat_.get(), [](void* self, const char* text) {
        handle(self, [=](Parser& parser) {
            parser.handler_.comment(text, parser.place());
            return std::string();
        });
    });
}

void Parser::setDeclarationHandlers() {
    XML_SetXmlDeclHandler(expat_.get(), [](void* self, const char*, const char* encoding, int) {
        handle(self, [=](Parser& parser) {
            parser.handler_.encoding(encoding != nullptr ? encoding : "");
            return std::string();
        });
    });
    XML_SetEntityDeclHandler(expat_.get(), [](void* self, const char*, int, const char*, int, const char*, const char*,
                                              const char*, const char*) {
        handle(self, [](Parser&) { return std::string("entity declarations are not allowed"); });
    });
    XML_SetSkippedEntityHandler(expat_.get(), [](void* self, const char* name, int) {
        handle(self, [=](Parser& parser) {
            parser.stop("the unknown entity ", name);
            return std::string();
        });
    });
}

} // namespace

XmlFault parseByExpat(std::string_view source, std::size_t begin, bool isUtf8, XmlHandler& handler) {
    return Parser(source, begin, isUtf8, handler).parse();
}

} // namespace StringTables::internal
