// Tests/Support/SourceFolder.h
// A source in a temporary folder, written by a test: reads it and keeps the messages about it.
#pragma once

#include "SourceBundle/Source.h"
#include "TemporaryFolder.h"
#include <string>
#include <string_view>
#include <vector>

namespace Support {

class SourceFolder : public TemporaryFolder {
public:
    SourceBundle::Source read(const SourceBundle::SourceOptions& options = {}) {
        const std::filesystem::path folders[] = {path()};
        return SourceBundle::Source::read(folders, options, diagnostics);
    }

    // Returns the messages so far and removes them: "warning: FILE:LINE:COLUMN: MESSAGE", with file names relative to
    // the folder, whose own name is then empty.
    std::vector<std::string> takeMessages() {
        std::vector<std::string> all;
        for (const SourceBundle::Diagnostic& one : diagnostics.all()) {
            constexpr const char* words[] = {"note: ", "warning: ", "error: "}; // by severity
            all.push_back(words[static_cast<int>(one.severity)] + withoutFolder(one.what.text()));
        }
        diagnostics = {};
        return all;
    }

    SourceBundle::Diagnostics diagnostics;

private:
    std::string withoutFolder(std::string text) const {
        const std::string folder = path().string();
        for (std::size_t at; (at = text.find(folder)) != std::string::npos;)
            text.erase(at, folder.size() + (text[at + folder.size()] == '/' ? 1 : 0));
        return text;
    }
};

} // namespace Support
