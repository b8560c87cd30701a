"""Replacement values for a literal of the source."""
import re

# A piece of a text between quotation marks, and one character in it: an escape or a letter.
PIECE = re.compile(r'"(?:\\.|[^"\\\n])*"')
CHARACTER = re.compile(r"\\x[0-9a-fA-F]+|\\[0-7]+|\\.|[A-Za-z]")
DOUBLE_BLANK = re.compile(r"(?<=\S)  (?=\S)")


def changed_number(literal):
    """Returns the number with its last digit one higher, and for whole numbers also one lower."""
    match = re.fullmatch(r"(0[xX][0-9a-fA-F]+|\d+)([uUlL]*)", literal)
    if match:
        value = int(match[1], 0) if match[1][:2] in ("0x", "0X") else int(match[1])
        return [f"{other}{match[2]}" for other in (value + 1, value - 1) if other >= 0]
    match = re.fullmatch(r"(\d*\.?\d*?)(\d)(\.?)((?:[eE][-+]?\d+)?[fFlL]?)", literal)
    if not match:
        return []
    return [f"{match[1]}{(int(match[2]) + 1) % 10}{match[3]}{match[4]}"]


def changed_character(literal):
    match = re.fullmatch(r"'([a-zA-Z0-9 .,:;_/-])'", literal)
    return [f"'{chr(ord(match[1]) + 1)}'"] if match else ["'x'"]


def next_letter(letter):
    return {"z": "a", "Z": "A"}.get(letter) or chr(ord(letter) + 1)


def changed_text(literal):
    """Returns variants of a text of one or more pieces: empty, with another letter in the middle, with one blank
    instead of two."""
    if not literal.startswith('"') or literal == '""':
        return []
    others = ['""']
    letters = [piece.start() + character.start() for piece in PIECE.finditer(literal)
               for character in CHARACTER.finditer(piece[0]) if len(character[0]) == 1]
    if letters:
        place = letters[len(letters) // 2]
        others.append(literal[:place] + next_letter(literal[place]) + literal[place + 1:])
    blanks = next((piece.start() + found.start() for piece in PIECE.finditer(literal)
                   for found in DOUBLE_BLANK.finditer(piece[0])), None)
    if blanks is not None:
        others.append(literal[:blanks] + literal[blanks + 1:])
    return others
