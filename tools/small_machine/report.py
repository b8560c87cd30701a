"""Reports the result of a release as text."""


def mb(kilobytes):
    """Formats memory as the program counts it: 1 MB is 1000 KB."""
    return f"{kilobytes / 1000:.1f} MB"


def gained_kb(result):
    return result["after"]["available_kb"] - result["before"]["available_kb"]


def is_gain(result):
    """True if the release gained memory: available memory rose, and memory of the idle programs went to the swap file."""
    before, after = result["before"], result["after"]
    return (gained_kb(result) > 0 and after["idle_in_ram_kb"] < before["idle_in_ram_kb"]
            and after["swap_used_kb"] > before["swap_used_kb"])


def table(rows):
    """Formats rows of texts as lines with aligned columns."""
    widths = [max(len(row[column]) for row in rows) for column in range(max(map(len, rows)) - 1)]
    return ["  ".join([*(text.ljust(width) for text, width in zip(row, widths)), *row[len(widths):]]).rstrip()
            for row in rows]


def report(result, pictures):
    before, after, again = result["before"], result["after"], result["after_again"]
    idle_mb = result["idle_mb"] * before["idle_programs"]
    figures = [
        ["", "before", "after"],
        ["Available memory", mb(before["available_kb"]), mb(after["available_kb"])],
        [f"Of the idle programs' {idle_mb} MB in RAM", mb(before["idle_in_ram_kb"]), mb(after["idle_in_ram_kb"])],
        ["Swap file in use", mb(before["swap_used_kb"]), mb(after["swap_used_kb"])],
        ["Title of the window", before["caption"], after["caption"]]]
    verdict = "Memory was gained" if is_gain(result) else "NO MEMORY WAS GAINED"
    unharmed = ("came back unharmed" if result["wrong_words"] == 0
                else f"CAME BACK WITH {result['wrong_words']} WRONG WORDS of {result['words']}")
    facts = [
        ["The machine", f"an emulated Pentium II with {result['memory_mb']} MB,"
                        f" {mb(before['total_kb'])} of it for programs"],
        ["The release", f"{result['release_mb']} MB in {result['release_seconds']:.1f} seconds of that machine's time"],
        ["A second release", f"found {mb(max(0, again['available_kb'] - after['available_kb']))} more,"
                             f" in {result['again_seconds']:.1f} seconds"],
        ["The idle programs", f"{before['idle_programs']} of {result['idle_mb']} MB each; their memory {unharmed}"],
        ["Pictures", " and ".join(map(str, pictures))]]
    return "\n".join([*table(figures), "", *table(facts), "",
                      f"{verdict}: {mb(gained_kb(result))} more than before, on an emulated PC."])
