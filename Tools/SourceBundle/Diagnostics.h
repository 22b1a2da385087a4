// SourceBundle/Diagnostics.h
// Collects messages about a source.
#pragma once

#include "Runtime/internal/Result.h"
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace SourceBundle {

enum class Severity { note, warning, error };

// The topic of a message, for tools that classify messages.
enum class Topic : std::uint8_t {
    other,
    unreadableTable,
    duplicateKey,
    placeholder, // a "%" begins no placeholder, or one for a variable that does not exist
    nameClash,   // a key, table or asset has no accessors because its name is taken
    noAccessor,  // a key, table or asset has no accessors for another reason
    missingFile,
    unreadableAsset,
    unassignedVariant,
    duplicateVariant
};

struct Diagnostic {
    Severity severity;
    Runtime::Error what; // message and location
    Topic topic = Topic::other;
    std::string subject{}; // the key or the asset's name, or empty
};

class Diagnostics {
public:
    void add(Severity severity, Runtime::Error what, Topic topic = Topic::other, std::string_view subject = {}) {
        const bool isRaised = isStrict_ && severity == Severity::warning;
        all_.push_back({isRaised ? Severity::error : severity, std::move(what), topic, std::string(subject)});
    }

    void add(const Diagnostic& one) { add(one.severity, one.what, one.topic, one.subject); }
    void add(const Diagnostics& others) {
        for (const Diagnostic& one : others.all())
            add(one);
    }

    const std::vector<Diagnostic>& all() const noexcept { return all_; }
    bool hasErrors() const noexcept { return count(Severity::error) != 0; }
    std::size_t count(Severity severity) const noexcept {
        return static_cast<std::size_t>(std::ranges::count(all_, severity, &Diagnostic::severity));
    }
    // Turns all warnings into errors, earlier and later ones.
    void beStrict() {
        isStrict_ = true;
        for (Diagnostic& diagnostic : all_)
            if (diagnostic.severity == Severity::warning)
                diagnostic.severity = Severity::error;
    }

private:
    std::vector<Diagnostic> all_;
    bool isStrict_ = false;
};

} // namespace SourceBundle
