"""Adds the source tree to a project that has targets with the names of our folders, builds that project's program with the
`lumora` that is already built, and runs it. Then installs as a distribution does, and compares the files with those that our own
build installs."""
import filecmp
import pathlib
import subprocess
import tempfile

from package_support import NUMBER, compile_by_pkg_config, expect, options, run, russian, source


def installed(prefix, libraries):
    """The files that two installations must have in common, by relative path; LIB is the folder of the libraries."""
    return {str(path.relative_to(prefix)).replace(f"{libraries.relative_to(prefix)}/", "LIB/"): path
            for path in prefix.rglob("*") if path.is_file() and path.suffix not in (".cmake", ".pc")}


with tempfile.TemporaryDirectory(prefix="lumora-parent-") as folder:
    folder = pathlib.Path(folder)
    cache = (pathlib.Path(options.build) / "CMakeCache.txt").read_text()
    flags = [f"-D{line}" for line in cache.splitlines() if line.startswith(("CMAKE_CXX_FLAGS", "CMAKE_C_FLAGS", "CMAKE_BUILD_TYPE"))]
    configure = [options.cmake, "-S", source / "Tests/Build/parent", "-G", options.generator, f"-DLUMORA_SOURCE={source}",
                 "-DLUMORA_TOOLS=OFF", f"-DLUMORA_PROGRAM={options.build}/bin/lumora", "-DCMAKE_UNITY_BUILD=ON"]
    for config in ("DEBUG", "RELEASE"):  # none of these may change what is installed
        configure += [f"-DCMAKE_{config}_POSTFIX=-{config}", f"-DCMAKE_LIBRARY_OUTPUT_DIRECTORY_{config}={folder}/libraries"]
    run(*configure, "-B", folder / "without a build type")  # fails if our files set one
    run(*configure, "-B", folder / "build", "-DLUMORA_INSTALL=ON", "-DCMAKE_INSTALL_PREFIX=/usr", *flags)
    run(options.cmake, "--build", folder / "build", "--target", "app")
    expect("own target only", run(folder / "build/app").splitlines()[:2], [russian("Continue"), NUMBER])

    run(options.cmake, "--build", folder / "build")
    run(options.cmake, "--install", folder / "build", env={"DESTDIR": str(folder / "stage"), "PATH": "/usr/bin:/bin"})
    usr = folder / "stage/usr"
    [library] = usr.rglob("liblumora.so")
    multiarch = subprocess.run(["cc", "-print-multiarch"], capture_output=True, text=True).stdout.strip()
    expect("library folder", library.parent, usr / "lib" / multiarch)
    environment = {"LD_LIBRARY_PATH": str(library.parent), "LANG": "ru_RU.UTF-8"}
    for key, client, compiler in (("Continue", source / "Tests/Build/consumer/app.cpp", ["c++", "-std=c++20"]),
                                  ("SportFeed", source / "Examples/loc.c", ["cc", "-std=c11"])):
        compile_by_pkg_config("lumora", [client], folder / client.stem, compiler, library.parent / "pkgconfig")
        expect(client.name, russian(key) in run(folder / client.stem, env=environment), True)

    run(options.cmake, "--install", options.build, "--prefix", folder / "other")
    [other] = (folder / "other").rglob("liblumora.so")
    distributed, own = installed(usr, library.parent), installed(folder / "other", other.parent)
    for name in sorted(set(distributed) & set(own)):
        # Only in release builds, because debug information contains folder names.
        if "BUILD_TYPE:STRING=Release" in cache and not filecmp.cmp(distributed[name], own[name], shallow=False):
            raise SystemExit(f"{name} differs between two builds in different folders")
    # Only the program and its files may be missing from the distribution's package, because LUMORA_TOOLS is off.
    tools = folder / "tools"
    run(options.cmake, "--install", options.build, "--prefix", tools, "--component", "tools")
    missing = set(own) - set(distributed) - set(installed(tools, tools / other.parent.relative_to(folder / "other")))
    expect("files that only our own build installs", sorted(missing), [])
print("a parent project builds its own target, and a distribution's package is complete and reproducible")
