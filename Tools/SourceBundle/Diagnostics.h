// SourceBundle/Diagnostics.h
// The messages about a source, collected in the order in which they were found.
#pragma once

#include "Runtime/internal/Result.h"
#include <algorithm>
#include <cstddef>
#include <string>
#include <utility>
#include <vector>

namespace SourceBundle {

enum class Severity { note, warning, error };

struct Diagnostic {
    Severity severity;
    Runtime::Error what; // message and place
};

class Diagnostics {
public:
    void add(Severity severity, Runtime::Error what) {
        const bool isRaised = isStrict_ && severity == Severity::warning;
        all_.push_back({isRaised ? Severity::error : severity, std::move(what)});
    }

    const std::vector<Diagnostic>& all() const noexcept { return all_; }
    bool hasErrors() const noexcept { return count(Severity::error) != 0; }
    std::size_t count(Severity severity) const noexcept {
        return static_cast<std::size_t>(std::ranges::count(all_, severity, &Diagnostic::severity));
    }
    // Makes every warning an error, the earlier ones and those to come.
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
