// Check/MessageFindings.h
// Turns messages of the source reader and the generator into findings: unreadable-table, duplicate-key, name-clash,
// unnamed-key, unreadable-asset, asset-missing-file, asset-unassigned, asset-duplicate-variant.
#pragma once

#include "Check/Report.h"
#include "SourceBundle/Source.h"

namespace Check {

// Reports the messages that belong to one of these rules, unless the key's comment allows the rule. Other warnings and
// errors are added to `others`, except those about lone percent signs, which checkPlaceholders() finds.
void takeFindings(const SourceBundle::Source& source, const SourceBundle::Diagnostics& messages, Report& report,
                  SourceBundle::Diagnostics& others);

} // namespace Check
