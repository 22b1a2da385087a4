// Compiles the project's own bundle during its build, when the program `lumora` is not there yet.
#include "Compiler/Bundle.h"

#include <cstdio>

int main(int argc, char** argv) {
    if (argc != 3) {
        std::fputs("usage: lumora-compile SOURCE BUNDLE\n", stderr);
        return 2;
    }
    SourceBundle::Diagnostics diagnostics;
    const auto done = Compiler::compileBundle(argv[1], argv[2], diagnostics, [](auto, auto, auto) {});
    for (const SourceBundle::Diagnostic& diagnostic : diagnostics.all())
        std::fprintf(stderr, "%s\n", diagnostic.what.text().c_str());
    if (!done)
        std::fprintf(stderr, "%s\n", done.error().text().c_str());
    return done && !diagnostics.hasErrors() ? 0 : 2;
}
