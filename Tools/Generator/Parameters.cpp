#include "Generator/Parameters.h"

#include "StringTables/internal/Placeholder.h"
#include "StringTables/internal/PluralPieces.h"

namespace Generator {

using StringTables::FormatSignature;

namespace {

Parameter parameterFor(FormatSignature::Kind kind) {
    switch (kind) {
    case FormatSignature::Kind::integer:
        return Parameter::integer;
    case FormatSignature::Kind::number:
        return Parameter::number;
    case FormatSignature::Kind::text:
    case FormatSignature::Kind::percent: // takes no argument
        break;
    }
    return Parameter::text;
}

const char* wordFor(Parameter parameter) {
    switch (parameter) {
    case Parameter::text:
        return "text";
    case Parameter::integer:
        return "an integer";
    case Parameter::number:
        return "a floating-point number";
    }
    return "";
}

std::string faultOf(const FormatSignature& signature) {
    if (signature.mixesPositions)
        return "mixes placeholders with and without a position";
    if (signature.conflict)
        return "takes argument " + std::to_string(signature.conflict->position) + " both as " +
               wordFor(parameterFor(signature.conflict->first)) + " and as " +
               wordFor(parameterFor(signature.conflict->later));
    if (signature.arguments.size() > maxParameters)
        return "takes more than " + std::to_string(maxParameters) + " arguments";
    for (std::size_t i = 0; i < signature.arguments.size(); ++i)
        if (!signature.arguments[i])
            return "has no placeholder for argument " + std::to_string(i + 1) + " of " +
                   std::to_string(signature.arguments.size());
    return "";
}

} // namespace

Parameters parametersOf(const SourceBundle::SourceEntry& entry) {
    const FormatSignature signature =
        entry.plural == nullptr ? StringTables::signatureOf(entry.text) : StringTables::signatureOf(*entry.plural);
    Parameters parameters;
    parameters.fault = faultOf(signature);
    parameters.hasLonePercent = signature.hasLonePercent;
    parameters.unknownVariable = signature.unknownVariable;
    for (const auto& kind : signature.arguments)
        parameters.all.push_back(parameterFor(kind.value_or(FormatSignature::Kind::text)));
    return parameters;
}

} // namespace Generator
