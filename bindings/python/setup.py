"""Builds the wheel, with the C library inside.

The library is built from the sources: those of the project, or the copy of them that a source
distribution has. QUORVANE_LIBRARY names one that is already built, and QUORVANE_PROJECT the folder
of the project, if this is a copy of its package.
"""

import os
import pathlib
import re
import shutil
import subprocess
import sys

from setuptools import Distribution, setup
from setuptools.command.build_py import build_py
from setuptools.command.sdist import sdist
from wheel.bdist_wheel import bdist_wheel

HERE = pathlib.Path(__file__).resolve().parent
COPY = HERE / "project"
PROJECT = COPY if COPY.exists() else pathlib.Path(
    os.environ.get("QUORVANE_PROJECT", HERE.parent.parent))

# What the library for C is built from.
SOURCES = ["CMakeLists.txt", "CMakePresets.json", "LICENSE", "THIRD-PARTY-NOTICES", "capi", "cmake", "com",
           "data", "packaging", "quorvane"]

FILE_NAMES = {"win32": "quorvane-1.dll", "darwin": "libquorvane.1.dylib"}


def version():
    text = (PROJECT / "CMakeLists.txt").read_text(encoding="utf-8")
    return re.search(r"project\(quorvane VERSION ([\d.]+)", text)[1]


def built_library(folder):
    """Builds the library and returns its path."""
    subprocess.run(["cmake", "-S", PROJECT, "-B", folder, "-DCMAKE_BUILD_TYPE=Release",
                    "-DQUORVANE_BUILD_C=ON", "-DQUORVANE_BUILD_CLI=OFF",
                    "-DQUORVANE_BUILD_TESTS=OFF"], check=True)
    subprocess.run(["cmake", "--build", folder, "--parallel", "--target", "quorvaneC"], check=True)
    if sys.platform == "win32":
        return folder / FILE_NAMES["win32"]
    return folder / "capi" / FILE_NAMES.get(sys.platform, "libquorvane.so.1")


class BuildWithLibrary(build_py):
    def run(self):
        super().run()
        folder = pathlib.Path(self.build_lib) / "quorvane"
        library = os.environ.get("QUORVANE_LIBRARY")
        library = pathlib.Path(library) if library else built_library(HERE / "build" / "library")
        target = folder / FILE_NAMES.get(sys.platform, "libquorvane.so.1")
        shutil.copyfile(library, target)
        strip = shutil.which("strip")
        if strip and sys.platform == "linux":
            subprocess.run([strip, "--strip-unneeded", target], check=True)
        for name in ("LICENSE", "THIRD-PARTY-NOTICES"):
            shutil.copyfile(PROJECT / name, folder / name)


class ForPlatform(Distribution):
    def has_ext_modules(self):
        return True


class WheelForPlatform(bdist_wheel):
    """The library is for one platform, the Python code for all versions."""

    def get_tag(self):
        return ("py3", "none", super().get_tag()[2])


class SourcesWithProject(sdist):
    def make_release_tree(self, base_dir, files):
        super().make_release_tree(base_dir, files)
        copy = pathlib.Path(base_dir) / "project"
        for name in SOURCES:
            source = PROJECT / name
            if source.is_dir():
                shutil.copytree(source, copy / name)
            else:
                copy.mkdir(exist_ok=True)
                shutil.copyfile(source, copy / name)


setup(version=version(), distclass=ForPlatform,
      cmdclass={"build_py": BuildWithLibrary, "bdist_wheel": WheelForPlatform,
                "sdist": SourcesWithProject})
