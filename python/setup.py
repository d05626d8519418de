"""Builds the package: the extension module, with the table of the library's functions, and the library at all levels.

The library is built before, and found in the folder that VONKK3_BUILD names, or else in build/release at the top of the
source tree.
"""
import os
import pathlib
import re
import shutil
import sys

import numpy
from setuptools import Extension, setup
from setuptools.command.build_ext import build_ext

HERE = pathlib.Path(__file__).resolve().parent
sys.path.insert(0, str(HERE))
import export_table  # noqa: E402: beside this file

BUILD = pathlib.Path(os.environ.get("VONKK3_BUILD", HERE.parent / "build" / "release"))
LEVELS = {"x86-64": "vonkk3.so", "x86-64-v3": "levels/x86-64-v3/vonkk3.so", "x86-64-v4": "levels/x86-64-v4/vonkk3.so"}


def version():
    text = (HERE.parent / "include" / "vonkk3" / "types.h").read_text(encoding="utf-8")
    return ".".join(re.search(rf"VONKK3_VERSION_{part} (\d+)", text)[1] for part in ("MAJOR", "MINOR", "PATCH"))


class BuildWithLibrary(build_ext):
    def run(self):
        functions = BUILD / "src" / "generated" / "functions.json"
        if not functions.exists():
            raise SystemExit(f"vonkk3: there is no built library in {BUILD}. Build it first, from the top of the source tree: "
                             "cmake --preset release && cmake --build --preset release")
        folder = pathlib.Path(self.build_temp)
        folder.mkdir(parents=True, exist_ok=True)
        export_table.write(functions, folder / "export_table.h")
        self.extensions[0].include_dirs.append(str(folder))
        super().run()
        package = pathlib.Path(self.build_lib) / "vonkk3"
        if self.inplace:
            package = HERE / "vonkk3"
        for level, path in LEVELS.items():
            if (BUILD / path).exists():
                (package / "lib" / level).mkdir(parents=True, exist_ok=True)
                shutil.copy(BUILD / path, package / "lib" / level / "vonkk3.so")


setup(
    name="vonkk3",
    version=version(),
    description="Linear algebra on very many small matrices and vectors, for numpy arrays",
    license="MIT",
    python_requires=">=3.9",
    install_requires=["numpy>=1.20"],
    packages=["vonkk3"],
    package_data={"vonkk3": ["py.typed", "*.pyi"]},
    ext_modules=[Extension("vonkk3._core", ["src/module.cpp", "src/loops.cpp"], include_dirs=["src", numpy.get_include()],
                           depends=["src/loops.h", "src/views.h", "src/scaling.h"],
                           extra_compile_args=["-std=c++20", "-O3", "-ffp-contract=off", "-fvisibility=hidden", "-Wall", "-Wextra"])],
    cmdclass={"build_ext": BuildWithLibrary},
    zip_safe=False,
)
