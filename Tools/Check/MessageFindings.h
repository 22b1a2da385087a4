// Check/MessageFindings.h
// The findings among the messages that reading and naming a source give: unreadable-table, duplicate-key, name-clash,
// unnamed-key, unreadable-asset, asset-missing-file, asset-unassigned, asset-duplicate-variant.
#pragma once

#include "Check/Report.h"
#include "SourceBundle/Source.h"

namespace Check {

// Reports each of `messages` that is a fault; other warnings and errors go to `others`.
void takeFindings(const SourceBundle::Source& source, const SourceBundle::Diagnostics& messages, Report& report,
                  SourceBundle::Diagnostics& others);

} // namespace Check
