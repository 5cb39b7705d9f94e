"""What the checks of sources have in common: a tool reads each source as a build compiles it, and finds something or not.

A source is looked at as the first compile database that has it compiles it; what a build made is left out. A source whose
inputs were found clean before is skipped. Its inputs are the source, all headers that it comes to include, its compile
command, the tool's settings, the tool itself and its check here; the cache holds a file for each set of inputs that was
clean.

Sources that are compiled alike, but for the folders of their headers and what is defined for them, are looked at several
at once, as one text. What is found there is not believed: the sources are halved until each is alone that has something
to be found.
"""

import concurrent.futures
import functools
import hashlib
import itertools
import json
import os
import re
import shlex
import subprocess
import sys
from pathlib import Path

import batches

SCAN_DEPENDENCIES = os.environ.get("CLANG_SCAN_DEPS", "clang-scan-deps-22")
JOBS = 2
# Enough that the system's headers no longer count; the more, the longer is waited for the last.
BATCH = 48

# Precompiled headers are the building compiler's own, and would hide what a source forgets to include.
PRECOMPILED = re.compile(r"(^|/)cmake_pch[^/]*$")
COMPILER = re.compile(r"(^|/)(g|c|clang)\+\+[-\d.]*$")
# How much is optimised, and for which place code is made.
LAST_OF_WHICH_HOLDS = (re.compile(r"-O\w*$"), re.compile(r"-f(?:PIC|PIE)$"))
# A source that is compiled for several processors at once is looked at for the first.
FURTHER_ARCHITECTURES = re.compile(r"( -arch \S+)((?: -arch \S+)+)(?: -fuse-lipo=\S+)?")


def plain_command(command, foreign_options):
    """The compile command without a compiler's cache, precompiled headers, other tools' options and further architectures."""
    arguments = shlex.split(FURTHER_ARCHITECTURES.sub(r"\1", command))
    while not COMPILER.search(arguments[0]):
        arguments.pop(0)
    kept = []
    for argument in arguments:
        if PRECOMPILED.search(argument):
            while kept and kept[-1] in ("-Xclang", "-include", "-include-pch"):
                kept.pop()
        else:
            kept.append(argument)
    return without_replaced([argument for argument in kept if not foreign_options.match(argument)])


def without_replaced(arguments):
    """The arguments without options that a later one takes the place of."""
    last = {kind_of(argument): index for index, argument in enumerate(arguments)}
    kept = (not kind_of(argument) or last[kind_of(argument)] == index for index, argument in enumerate(arguments))
    return list(itertools.compress(arguments, kept))


def kind_of(argument):
    """What an option decides alone, as the last of its kind; None for other arguments."""
    return next((kind for kind in LAST_OF_WHICH_HOLDS if kind.match(argument)), None)


def without_output(arguments):
    """A command's arguments without where its object is put."""
    if "-o" not in arguments:
        return arguments
    at = arguments.index("-o")
    return [*arguments[:at], *arguments[at + 2 :]]


def definitions(command):
    """What a compile command defines, by name."""
    found = (argument[2:].partition("=") for argument in command if argument.startswith("-D"))
    return {name: value for name, _, value in found}


def agree(one, other):
    """Whether nothing is defined differently in both."""
    return all(other.get(name, value) == value for name, value in one.items())


def split_command(command):
    """A compile command as what sources have to share, and what may be put together: where headers are, what is defined."""
    shared, together = [], []
    arguments = iter(command)
    for argument in arguments:
        if argument == "-isystem":
            together.append(argument + next(arguments))
        else:
            (together if argument.startswith(("-I", "-isystem", "-D")) else shared).append(argument)
    return tuple(shared), tuple(together)


def parts(sources):
    """The sources in lists of at most so many, with one program in each at most, since a text can be one alone."""
    programs = [source for source in sources if batches.is_program(source.read_text())]
    others = [source for source in sources if source not in programs]
    count = max(len(programs), -(-len(sources) // BATCH))
    return [
        others[len(others) * part // count : len(others) * (part + 1) // count] + programs[part : part + 1]
        for part in range(count)
    ]


def included_files(database, entries):
    """For each source that can be read to its end, all files that it consists of."""
    scan = subprocess.run(
        [SCAN_DEPENDENCIES, "-compilation-database", database, "-format", "make", "-j", str(JOBS)],
        capture_output=True, text=True, check=False,
    )
    included = {}
    for rule in scan.stdout.replace("\\\n", " ").splitlines():
        files = [file.replace("\\ ", " ") for file in re.split(r"(?<!\\)\s+", rule.partition(": ")[2].strip())]
        source = Path(files[0]).resolve()
        if source in entries:
            included[source] = [os.path.join(entries[source]["directory"], file) for file in files]
    return included


class SourceCheck:
    """One tool over the sources of a tree. A kind of check says what its tool is and runs it."""

    # What stands before the closing line.
    name = ""
    # The name of files with the tool's settings, each for its folder and those below it; None when there are none.
    settings_file = None
    # Options that mean nothing for a source, and that the tool would complain of.
    foreign_options = re.compile(r"-Winvalid-pch$|-fpch-instantiate-templates$")
    # What several sources at once are looked at with besides.
    options_for_several = ()
    # Files besides this one that decide what is found.
    parts_of_the_check = ()

    def __init__(self, root, cache, databases):
        self.root = Path(root).resolve()
        self.cache = Path(cache).resolve()
        self.cache.mkdir(parents=True, exist_ok=True)
        self.entries = self.entries_to_check([Path(database) for database in databases])
        database = self.cache / "compile_commands.json"
        database.write_text(json.dumps(list(self.entries.values()), indent=1))
        self.included = included_files(database, self.entries) if self.entries else {}

    def version(self):
        """Text that changes when the tool does."""
        raise NotImplementedError

    def look_at(self, entry, folder):
        """Whether the source of an entry, alone in the database of a folder or one of several, is clean; what is found."""
        raise NotImplementedError

    def found_by_reading(self, source):
        """What is found in a source without the tool."""
        return ""

    def entries_to_check(self, databases):
        entries = {}
        for database in databases:
            made = database.resolve().parent
            for entry in json.loads(database.read_text()):
                source = (Path(entry["directory"]) / entry["file"]).resolve()
                if source.is_relative_to(self.root) and not source.is_relative_to(made) and source.suffix == ".cpp":
                    arguments = plain_command(entry["command"], self.foreign_options)
                    entries.setdefault(
                        source, {"directory": entry["directory"], "file": str(source), "arguments": arguments}
                    )
        return entries

    @functools.cached_property
    def common_inputs(self):
        files = (__file__, batches.__file__, *self.parts_of_the_check)
        return [self.version(), *(self.input_file(os.path.realpath(path)) for path in files)]

    # Most headers belong to most sources, so all that is known of a file is kept.
    @functools.cache
    def input_file(self, path):
        content = Path(path).read_bytes() if os.path.isfile(path) else b"absent"
        return f"{path} {hashlib.sha256(content).hexdigest()}"

    @functools.cache
    def settings_of(self, folder):
        """The files of settings that hold in a folder of the tree."""
        folder = Path(folder).resolve()
        above = [folder, *folder.parents] if self.settings_file else []
        return {str(path / self.settings_file) for path in above if path.is_relative_to(self.root)}

    def key(self, source):
        """The hash of what the judgement on a source depends on."""
        files = self.included[source]
        settings = set().union(*(self.settings_of(folder) for folder in {os.path.dirname(file) for file in files}))
        own = [*map(self.input_file, sorted(settings)), *map(self.input_file, files)]
        inputs = [*self.common_inputs, json.dumps(self.entries[source]), *own]
        return hashlib.sha256("\n".join(inputs).encode()).hexdigest()

    def existing_settings(self, source):
        return tuple(sorted(path for path in self.settings_of(source.parent) if os.path.isfile(path)))

    def batches(self, sources):
        """The sources in lists of those that can be compiled as one, and are looked at with the same settings."""
        alike = {}
        for source in sorted(sources):
            shared = split_command(self.command(source))[0]
            self.place(source, alike.setdefault((shared, self.existing_settings(source)), []))
        found = [part for sources, _ in itertools.chain.from_iterable(alike.values()) for part in parts(sources)]
        return sorted(found, key=lambda part: sum(source.stat().st_size for source in part), reverse=True)

    def place(self, source, groups):
        """Puts a source into the first of the groups, of sources and what is defined for them, that it agrees with."""
        defined = definitions(self.command(source))
        for sources, definitions_there in groups:
            if agree(defined, definitions_there):
                sources.append(source)
                definitions_there.update(defined)
                return
        groups.append(([source], defined))

    def command(self, source):
        """What a source is compiled with, but for its name and its object's."""
        entry = self.entries[source]
        command = [argument for argument in entry["arguments"] if argument != str(source)]
        return (entry["directory"], *without_output(command))

    def command_for_all(self, sources):
        """A compile command for the sources as one text."""
        shared = split_command(self.command(sources[0]))[0]
        together = itertools.chain.from_iterable(split_command(self.command(source))[1] for source in sources)
        return [*shared, *dict.fromkeys(together)]

    def batch_is_clean(self, sources, name):
        """Whether nothing is found in the sources as one text. It lies where the settings of its sources hold."""
        folder = self.cache / "batches" / name
        text = folder / "batch.cpp"
        folder.mkdir(parents=True, exist_ok=True)
        for path in self.existing_settings(sources[0]):
            copy = folder / os.path.relpath(path, self.root)
            copy.parent.mkdir(parents=True, exist_ok=True)
            copy.write_bytes(Path(path).read_bytes())
            text = copy.parent / "batch.cpp"
        text.write_text(batches.joined([(source.relative_to(self.root), source.read_text()) for source in sources]))
        directory, *command = self.command_for_all(sources)
        folders = [f"-iquote{path}" for path in sorted({source.parent for source in sources})]
        arguments = [*command, *self.options_for_several, *folders, str(text)]
        entry = {"directory": directory, "file": str(text), "arguments": arguments}
        (folder / "compile_commands.json").write_text(json.dumps([entry]))
        return self.look_at(entry, folder)[0]

    def findings(self, sources, number):
        """What is found in those of the sources that are not clean."""
        found = {source: self.found_by_reading(source) for source in sources}
        for source, findings in self.found_by_the_tool(sources, str(number)):
            found[source] += findings
        return {source: findings for source, findings in found.items() if findings}

    def found_by_the_tool(self, sources, name):
        """Pairs of a source and what the tool finds in it."""
        if len(sources) == 1:
            clean, findings = self.look_at(self.entries[sources[0]], self.cache)
            return [] if clean else [(sources[0], findings)]
        if self.batch_is_clean(sources, name):
            return []
        middle = len(sources) // 2
        return self.found_by_the_tool(sources[:middle], f"{name}a") + self.found_by_the_tool(sources[middle:], f"{name}b")

    def look_at_all(self, sources, keys):
        """Prints what is found in the sources, notes those that are clean, and answers how many are not."""
        unclean = 0
        with concurrent.futures.ThreadPoolExecutor(JOBS) as pool:
            batched = enumerate(self.batches(sources))
            started = {pool.submit(self.findings, batch, number): batch for number, batch in batched}
            for done in concurrent.futures.as_completed(started):
                found = done.result()
                unclean += len(found)
                for source in started[done]:
                    if source in found:
                        print(f"{source.relative_to(self.root)} is not clean:\n{found[source]}", flush=True)
                    elif source in keys:
                        (self.cache / f"{keys[source]}.clean").touch()
        return unclean

    def forget_others(self, keys):
        current = {f"{key}.clean" for key in keys.values()}
        for kept in self.cache.glob("*.clean"):
            if kept.name not in current:
                kept.unlink()

    def run(self):
        """The exit code: 0 when every source is clean."""
        if not self.entries:
            print(f"{self.name}: there is no source to look at")
            return 1
        keys = {source: self.key(source) for source in self.included}
        left = [source for source in self.entries if not self.is_known(source, keys)]
        unclean = self.look_at_all(left, keys)
        self.forget_others(keys)
        known = len(self.entries) - len(left)
        print(f"{self.name}: {len(left)} sources looked at, {unclean} of them not clean; {known} known to be clean")
        return 1 if unclean else 0

    def is_known(self, source, keys):
        return source in keys and (self.cache / f"{keys[source]}.clean").exists()


def main(check, usage):
    """check ROOT CACHE DATABASE..., from the command line."""
    if len(sys.argv) < 4:
        sys.exit(usage)
    root, cache, *databases = sys.argv[1:]
    sys.exit(check(root, cache, databases).run())
