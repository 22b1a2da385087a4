// SourceBundle/Diagnostics.h
// What a reading of the source bundle found to say, collected whole before anybody stops over it.
#pragma once

#include "Runtime/internal/Result.h"
#include <algorithm>
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
    void add(Severity severity, Runtime::Error what) { all_.push_back({severity, std::move(what)}); }

    const std::vector<Diagnostic>& all() const noexcept { return all_; }
    bool hasErrors() const noexcept {
        return std::ranges::any_of(all_, [](const Diagnostic& d) { return d.severity == Severity::error; });
    }

private:
    std::vector<Diagnostic> all_;
};

} // namespace SourceBundle
