// Tests/Check/CheckedSource.h
// A source written by a test, with the findings in it.
#pragma once

#include "../Support/SourceFolder.h"
#include "Check/Check.h"
#include <initializer_list>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace Support {

using Strings = std::vector<std::string>;

class CheckedSource : public SourceFolder {
public:
    CheckedSource(std::initializer_list<std::pair<std::string_view, std::string_view>> files) {
        for (const auto& [name, text] : files)
            write(name, text);
    }

    // "RULE FILE:LINE:COLUMN LANGUAGE KEY" for each finding except coverage. KEY is empty for a whole table. For an
    // asset, LANGUAGE is empty and KEY is the asset's name.
    Strings findings(Check::Options options = {}) {
        options.folders = {path()};
        const SourceBundle::Source source = read();
        Strings all;
        for (const Check::Finding& finding : Check::check(source, options, diagnostics))
            if (finding.rule != Check::Rule::coverage)
                all.push_back(std::string(Check::infoOf(finding.rule).name) + ' ' +
                              std::filesystem::path(finding.file).lexically_relative(path()).string() + ':' +
                              std::to_string(finding.line) + ':' + std::to_string(finding.column) + ' ' +
                              finding.language + ' ' + finding.subject);
        return all;
    }
};

} // namespace Support
