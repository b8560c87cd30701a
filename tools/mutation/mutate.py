#!/usr/bin/python3
"""How much do the unit tests catch?   mutate.py --sample 300 --seed 1 [FILE[:LINE] or FOLDER...]

Changes the portable sources in one place at a time (a constant, a text, a flag, an operator, the ends of a range; an
entry of a table left out or moved; two statements swapped; a statement or a call left out). Makes a random sample of
all such changes, and counts how many the unit tests catch. The report, build/mutation/report.txt, names each survivor.
A change that never ends counts as caught. Of the headers only the screens are changed: the others contain little code,
and a change there would recompile most of the program. The same seed draws the same sample from the same sources.
"""
import argparse
import collections
import concurrent.futures
import pathlib
import random
import sys

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parent))
import operators  # noqa: E402
import workshop  # noqa: E402

SCREENS = ("src/screens/*.h", "companions/*/*_screen.h")
LEFT_OUT = {"win32", "simulated", "runtime"}
# The checks of a real machine. No unit test runs them, because a simulated machine gives the expected answers by
# construction.
ON_REAL_MACHINES = {"companions/self_test/reading_checks.cpp"}


def sources():
    found = [path for folder in workshop.FOLDERS for path in (workshop.ROOT / folder).rglob("*.cpp")]
    found += [path for screens in SCREENS for path in workshop.ROOT.glob(screens)]
    names = sorted(path.relative_to(workshop.ROOT) for path in found)
    return [workshop.ROOT / name for name in names
            if not LEFT_OUT & set(name.parts) and name.as_posix() not in ON_REAL_MACHINES]


def is_asked_for(mutant, places):
    return not places or any(mutant.file == place or mutant.file.startswith(place.rstrip("/") + "/")
                             or f"{mutant.file}:{mutant.line}" == place for place in places)


def may_hold(name, places):
    """True if a file can have mutants that are requested."""
    return not places or any(f"{name}/".startswith(place.split(":")[0].rstrip("/") + "/") for place in places)


def report(results, total):
    """Returns the lines of the report; `results` are pairs of a verdict and a description."""
    count = collections.Counter(verdict for verdict, _ in results)
    judged = count["caught"] + count["survived"]
    yield from (f"survived: {text}" for verdict, text in results if verdict == "survived")
    yield (f"mutation: {len(results)} of {total}: {count['caught']} caught, {count['survived']} survived, "
           f"{count['did not compile']} did not compile")
    yield f"mutation: {100 * count['caught'] / judged:.1f} percent caught" if judged else "mutation: nothing to judge"


def all_mutants(shop, places):
    """Returns the mutants in the order of the sources. Parsing a source takes about a second, so sources are parsed
    in parallel."""
    names = {path: path.relative_to(workshop.ROOT).as_posix() for path in sources()}
    wanted = [path for path, name in names.items() if may_hold(name, places)]
    with concurrent.futures.ProcessPoolExecutor(workshop.JOBS) as pool:
        found = pool.map(operators.mutants_of, wanted, map(names.get, wanted), map(shop.parse_arguments, wanted))
        return [mutant for mutants in found for mutant in mutants
                if is_asked_for(mutant, places) and shop.sources_of(mutant)]


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--sample", type=int, default=300)
    parser.add_argument("--seed", type=int, default=1)
    parser.add_argument("places", nargs="*", help="only in these: folder, file, or file:line, from the root of the tree")
    asked = parser.parse_args()

    shop = workshop.Workshop()
    mutants = all_mutants(shop, asked.places)
    sample = random.Random(asked.seed).sample(mutants, min(asked.sample, len(mutants)))

    def judge(mutant):
        verdict = shop.verdict(mutant)
        text = mutant.described((workshop.ROOT / mutant.file).read_bytes())
        print(f"{verdict:16}{text}", flush=True)
        return verdict, text

    with concurrent.futures.ThreadPoolExecutor(workshop.JOBS) as pool:
        results = list(pool.map(judge, sample))
    lines = list(report(sorted(results), len(mutants)))
    (workshop.BUILD / "report.txt").write_text("\n".join(lines) + "\n", encoding="utf-8")
    print("\n".join(lines))


if __name__ == "__main__":
    main()
