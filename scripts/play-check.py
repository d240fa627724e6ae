#!/usr/bin/env python3
"""play-check.py [--pictures] [BUILD]: plays the built game in the emulator atari800 and looks into its memory. Without
the emulator it says so and ends with success. --pictures: also takes docs/obrazy/gra-*.png and etap-*.png again (needs
xvfb-run, ImageMagick and xwd)."""
import os
import re
import shutil
import subprocess
import sys
from collections import namedtuple
from concurrent.futures import ThreadPoolExecutor
from itertools import accumulate
from pathlib import Path
from random import Random
from tempfile import TemporaryDirectory, mkdtemp

os.chdir(Path(__file__).parent.parent)
if not shutil.which("atari800"):
    print("play-check: skipped, the emulator atari800 is not installed")
    sys.exit()
arguments = sys.argv[1:]
with_pictures = arguments[:1] == ["--pictures"]
build = Path((arguments[with_pictures:] or ["build/release"])[0]).absolute()
data, game, game_maker = build / "data", build / "data/PLIKI/DP2.DTA", build / "game/tools/zloz_gre"
if not game_maker.exists() or not game.exists():
    sys.exit(f"play-check: no {game} or no {game_maker}; build all first")

BOARD, COLUMNS, DORVA, BENEATH = 800, 40, 63, 127
address = {"RAMTOP": 0x6A, "SDMCTL": 0x22F}  # and of each label of the game
for line in (build / "game/src/szablon.lbl").read_text().splitlines():
    address.setdefault(line.split()[2][1:], int(line.split()[1], 16))
field = {name: int(offset)  # offsets of the fields of a stage record
         for name, offset in re.findall(r"^ETAP_(\w+) *= *(\d+)", Path("game/src/rekord.inc").read_text(), re.M)}
stages = {number: (data / f"ETAPY/DETAP.{number}").read_bytes() for number in range(1, 33)}
worlds = {world: min(stage for stage in stages if stages[stage][field["SWIAT"]] == world) for world in range(3)}
temporary = TemporaryDirectory()

def part(record, name, size):
    return record[field[name]:field[name] + size]
def shown_board(record):
    return part(record, "PLANSZA", BOARD).replace(bytes([DORVA]), bytes([BENEATH]), 1)
def patched(record, offset, new):
    return record[:offset] + bytes(new) + record[offset + len(new):]
def tiles(world):
    return (data / f"OBIEKTY/ORN_EXPORT/FNT{world}1.ORN.ND").read_bytes()
def letters(text):
    return bytes(ord(letter) - 32 for letter in text)

# Input: a token is letters and a number of frames: L R U D stick, F trigger, T START, S SELECT, O OPTION, E and M the
# keys ESC and M, - nothing.
TO_GAME = "-400 F10 -60"
HASTE = f"{TO_GAME} R50 D50 L90 U50 F3 R200 D60 F3 L60 U300 F10 R60 E5 L9 E5"  # to and fro, and out

def frames(token):
    keys, count = re.fullmatch(r"(\D+)(\d+)", token).groups()
    stick = 255 - ("U" in keys) - 2 * ("D" in keys) - 4 * ("L" in keys) - 8 * ("R" in keys)
    console = 7 - ("T" in keys) - 2 * ("S" in keys) - 4 * ("O" in keys)
    key = 28 if "E" in keys else 37 if "M" in keys else -1
    frame = [f"{key} 0 {console}", stick, 255, int("F" not in keys), 1, 1, 1, "00000000"]
    return "".join(f"{line} \n" for line in frame) * int(count)

def run_of(stage):
    """The recorded run of a stage: a step is a tap of two frames, then four frames of rest. The first move takes a frame
    more than in the rules, since it also ends the greeting."""
    steps = Path(f"tests/gra/przejscia/etap{stage}.txt").read_text().split("\n", 1)[1].split()
    return "".join(f"{step[0]}2 -4 " * int(step[1:]) for step in steps).replace("2", "3", 1)

# The steps of a game. One is a label: it goes on until the program gets there; with "not" in front: it doesn't until the
# input ends. Or a label, perhaps with an offset, and what must be there in memory: bytes, or one as a number. Any other
# is a command to the emulator's monitor.
def until(label, go_on="CONT"):
    return f"BPC {address[label]:X}\n{go_on}"

def poke(label, *values):
    return f"C {address[label]:X} {' '.join(f'{value:X}' for value in values)}"

def enter(stage):  # from the title on
    return poke("numer_etapu", stage) + "\n" + until("graj_etap", f"CONT {address['graj']:X}")

RESET = until("rysuj_tytul", "WARMSTART")

FAST = ["env", "SDL_VIDEODRIVER=dummy", "SDL_AUDIODRIVER=dummy", "atari800", "-turbo"]
SHOWN = ["xvfb-run", "-a", "-s", "-noreset -screen 0 672x480x24", "env", "SDL_AUDIODRIVER=dummy", "atari800", "-pal",
         "-win-width", "672", "-win-height", "480"]
Played = namedtuple("Played", "steps log pokey")  # the steps that were made, the monitor's words, the sound chip's file

def play(file, tokens, steps, *machine, emulator=FAST):
    """Plays a game with recorded input. The machine is a 130XE unless another is given."""
    folder = Path(mkdtemp(dir=temporary.name))
    (folder / "input").write_text("Atari800 event recording, version: 1\n10387\n" + "".join(map(frames, tokens.split())))
    (folder / "config").touch()
    commands, files = [], [folder / f"step{number}" for number in range(len(steps))]
    for step, made in zip(steps, files):
        start = size = 1
        if isinstance(step, tuple):
            label, _, offset = step[0].partition("+")
            start, size = address[label] + int(offset or 0), len(step[1]) if isinstance(step[1], bytes) else 1
        else:
            label = step.removeprefix("not ")
            commands.append(until(label) if re.fullmatch("[a-z_]+", label) else label)
        commands.append(f"WRITE {start:X} {start + size - 1:X} {made.name}")  # never done if the input ends before
    log = subprocess.run(["timeout", "300", *emulator, "-config", "config", "-nobasic", "-xl-rev", "altirra",
                          "-nosound", "-playback", "input", "-pokeyrec", "-pokeyrec-ascii", "-pokeyrec-file", "pokey",
                          "-xe", *machine, "-run", file, "-monitor"],
                         cwd=folder, input="\n".join([*commands, "QUIT", ""]), text=True, errors="replace",
                         stdout=subprocess.PIPE, stderr=subprocess.STDOUT).stdout
    pokey = folder / "pokey"
    if not pokey.exists():
        sys.exit(f"play-check: the emulator doesn't start:\n{log}")
    return Played([*map(outcome, steps, files)], log, pokey)

def outcome(step, made):
    """A step as it went: whether the program got there, or what was there in memory."""
    if isinstance(step, tuple):
        content = made.read_bytes() if made.exists() else b""
        return step[0], content if isinstance(step[1], bytes) else int.from_bytes(content, "little")
    return ("" if made.exists() else "not ") + step.removeprefix("not ")

def follow(what, file, tokens, steps, *machine):
    """Plays, and compares each step: what is checked, and the first difference as it was found and as it should be."""
    found = play(file, tokens, steps, *machine).steps
    return what, *next((pair for pair in zip(found, steps) if pair[0] != pair[1]), (True, True))

def build_game(*records, lines=("ATAROWIEC.", "", "TEST ETAPU")):
    """A game of these stages, the last of them marked so. Of one, it is like the one that a test build makes."""
    folder = Path(mkdtemp(dir=temporary.name))
    files = [folder / f"etap{which}" for which in range(len(records))]
    for file, record in zip(files, records):
        file.write_bytes(record)
    subprocess.run([game_maker, game, folder / "test.xex", *lines, *files], check=True)
    return folder / "test.xex"

def title_lines(*lines):
    """Steps: the lines are on the text screen, each in the middle."""
    return [(f"ekran+{2 * COLUMNS * row + 8}", letters(line.center(24))) for row, line in enumerate(lines)]

# Each check yields what it looked at, what it found and what it expects.

def all_runs(system):
    """The whole game in one go. A stage waits for the stick, so there may be any time between two."""
    steps = [step for stage in stages
             for step in ("graj_etap", ("numer_etapu", stage), "otworz", ("brak_masek", 0), "policz_premie")]
    yield follow(f"all stages are entered, their exits open, she goes through, to the last screen ({system})", game,
                 " ".join([TO_GAME, *(f"{run_of(stage)} -200" for stage in stages)]), [*steps, "ekran_wygranej"], system)

def dying():
    """She steps into a fire and stays there, three times."""
    beside = stages[1].index(DORVA, field["PLANSZA"]) - 1
    lives = [step for left in (3, 2, 1) for step in ("graj_etap", ("zycia", left))]
    yield follow("three tries, a life is lost each time, then the end of the game",
                 build_game(patched(stages[1], beside, [35, DORVA, 35])), f"{TO_GAME} R7 -300 R7 -300 R7 -400",
                 [*lives, "ekran_konca", "wcisniete"])
    yield follow("who hammers fire sees the end as well", game, f"{TO_GAME} R7 -20 E5 -9 E5 {'F3 -3 ' * 15}",
                 ["ekran_konca", "not rysuj_tytul"])

def keys():
    """Each key means the same in the greeting, in play and in a pause; START and ESC when pressed again in a second."""
    for phase, before in ("greeting", "-60"), ("play", "R7 -20"), ("pause", "R7 O5 -20"):
        for presses, effect in ("E5 -40 E5", "ekran_konca"), ("T5 -40 T5", "nowa_gra"), ("S5", "wczytaj_etap"):
            yield follow(f"{presses} in the {phase}", game, f"{TO_GAME} {before} {presses} -60", ["graj_etap", effect])
        yield follow(f"ESC held, presses far apart or of two keys in the {phase} end nothing, SELECT begins anew; that "
                     "costs no life, but the bonus of a try begun", game,
                     f"{TO_GAME} {before} E200 -60 E5 -70 E5 -70 T5 -70 T5 -70 T5 E5 -30 S5 -60",
                     ["graj_etap", "wczytaj_etap", ("wynik", 4), "graj_etap", ("zycia", 3),
                      ("premia", 99 if phase == "greeting" else 0)])
        yield follow(f"OPTION in the {phase}: a pause ends, and its word goes at once", game,
                     f"{TO_GAME} {before} O5 -200 O5 R60 -100", ["graj_etap", "info_powitanie", ("pauza", 0)])
    for system, step in ("-pal", "wczytaj_etap"), ("-ntsc", "ekran_konca"):
        yield follow(f"55 frames are more than a second on PAL only ({system})", game,
                     f"{TO_GAME} R7 -20 E5 -50 E5 -60 S5 -60", ["graj_etap", step], system)
    yield follow("a question stays; another message waits", game, f"{TO_GAME} R7 -20 E5 -5 F3 -90",
                 ["graj_etap", *["takt_innych"] * 40, ("linia_info", letters("ESC JESZCZE RAZ - KONIEC GRY".center(40))),
                  *["takt_innych"] * 50, ("linia_info", letters("NIE MASZ BOMBY".center(40)))])
    yield follow("a stick held from before doesn't end the greeting", game, f"{TO_GAME} R7 -20 RS5 R90",
                 ["graj_etap", "graj_etap", "not takt_dorvy"])

def choice():
    """The stage that the title offers, and where START in play goes."""
    yield follow("the title stays while a held stick chooses from stage to stage, names them, and offers the last again",
                 game, "-400 R38 -20 F10 -60 E5 -9 E5 -60 F10 -100",
                 ["wcisniete", "wez_etap", ("SDMCTL", 34), "wez_etap", ("SDMCTL", 34), "nazwij_etap", "wcisniete",
                  (f"ekran+{7 * COLUMNS + 4}", part(stages[3], "NAZWA", 32)), "graj_etap", ("numer_etapu", 4),
                  "ekran_konca", "tytul", "wcisniete", ("numer_etapu", 4)])
    entries = [step for stage in (1, 2, 1, 2) for step in ("graj_etap", ("numer_etapu", stage))]
    yield follow("START goes back to the stage chosen; after the end of a game the title offers the one reached",
                 game, f"{TO_GAME} {run_of(1)} -300 T5 -9 T5 -60 {run_of(1)} -300 E5 -9 E5 -60 T10 -30 F10 -100",
                 [*entries, "ekran_konca", "tytul", "wcisniete", ("numer_etapu", 2)])
    yield follow("after the victory it offers the first one", game,
                 f"-400 L5 -30 F10 -60 {run_of(32)} -900 T10 -30 F10 -60",
                 ["graj_etap", ("numer_etapu", 32), "ekran_wygranej", "tytul", "wcisniete", ("numer_etapu", 1)])

def tunes():
    """The notes of a section's two phrases last as long as the section."""
    memory = bytes(0x8000) + game.read_bytes()[8468:]  # as it is loaded
    def word(at):
        return memory[at] + 256 * memory[at + 1]
    for tune in "las", "jaskinie", "swiatynia", "tytulowa", "przeszla", "strata", "koniec", "wygrana":
        section, eighths, ends = address[tune] + 6, memory[address[tune] + 1], set()
        while word(section) > 255:
            for phrase in word(section), word(section + 2):
                lengths = (memory[address["dlugosci"] + note // 32] for note in memory[phrase:])
                ends.add(eighths in accumulate(lengths))
            section += 4
        yield f"melody and bass of {tune} end with their sections", ends, {True}

def music(system, frame_rate):
    """The emulator records the sound chip: nine bytes a frame, AUDC3 and AUDC4 behind the pitches of the tune."""
    tokens = "-400 F10 -500 O5 -100 O5 -100 M50 -100 M5 -100 E5 -9 E5 -400 T10 -99 T10 -60 O5 -60 M5 -400 M5 -60 M5 -20"
    played = play(game, tokens, ["ekran_konca", "graj", "przelacz_muzyke", RESET, "przelacz_muzyke", "przelacz_muzyke",
                                 "ekran_konca"], system)
    sound = [bytes.fromhex(line) for line in played.pokey.read_text().split()]
    heard = {300: True, 900: True, 1000: False, 1100: True, 1150: False, 1250: False, 1350: True, 1450: True,
             2030: False, 2250: True, 2490: False, 2530: True}
    yield (f"the tune waits in a pause, the key M stops it, RESET in a pause brings it back ({system})",
           {frame: any(sound[frame][voice] % 16 for voice in (5, 7)) for frame in heard}, heard)
    first = next(frame for frame, registers in enumerate(sound) if registers[4] == 64)  # B, not in the title's tune
    yield f"its tempo is the same on every system ({system})", 6.4 < (first - 410) / frame_rate < 7, True

def records():
    yield follow("the initials B, space and A are chosen; after RESET too the title shows the result and, with the keys "
                 "again, a star for the finished stage, dark on light as the chosen one, and its best bonus", game,
                 f"{TO_GAME} {run_of(1)} -300 E5 -9 E5 -60 U30 -9 R5 -9 D5 -9 F9 -9 F9 -60 F9 -400 L9 -9",
                 ["zapisz_etap", poke("premia", 42), "ekran_konca", poke("punkty", 0x01, 0x23, 0x45), "rysuj_tytul",
                  RESET, "pisz_wyniki", "etap_probny", (f"ekran+{10 * COLUMNS + 13}", letters("1. B A 012345")),
                  "pisz_rekord", "wcisniete", (f"ekran+{8 * COLUMNS + 4}", bytes([10 + 128] + [14] * 31)),
                  (f"ekran+{6 * COLUMNS + 34}", letters("42"))])
    yield follow("START takes the initials as they are, and the closing screen stays", game,
                 f"{TO_GAME} {run_of(1)} -300 E5 -9 E5 -60 T10 -90", ["wpisz_inicjaly", "not rysuj_tytul"])
    two, letter = build_game(stages[1], stages[2]), 33
    for what, file, moves, brick, initial, bonus in (
            ("a game from 1 on", two, f"F10 -60 {run_of(1)} -300", 12, letter, ("premie", 43)),
            ("one from 2 on", two, "R6 -9 F10 -60", 17, letter, ("premie+1", 43)),
            ("a test game", build_game(stages[2]), "F10 -60", 17, 0, ("premie", 0))):
        yield follow(f"{what}: its end, results and stars", file, f"-400 {moves} {run_of(2)} -600 F9 -9",
                     ["zapisz_etap", poke("premia", 42), "ekran_wygranej", "czekaj_na_puszczenie", ("cegla", brick),
                      ("wyniki", initial), bonus])

def idle_title():
    """It shows the tiles, then a demonstration, which ends at the exit or with a move of the stick."""
    yield follow("an idle title shows page after page of tiles, until the stick moves, which does nothing else", game,
                 "-1700 R9 -1300", ["pokaz_opis", ("logo+41", bytes([12, 0])), "rysuj_strone", "rysuj_tytul",
                                    "pokaz_opis", ("numer_etapu", 1)])
    for what, file, moves, won in (("the sample's first stage is played to its end", game, "-3800", 1),
                                   ("a move of the stick ends that", game, "-3250 L9 -99", 0),
                                   ("a game with another one has none", build_game(stages[2], stages[3]), "-3250", 0)):
        yield follow(what, file, f"-400 R9 {moves}", ["pokaz_gre", "rysuj_tytul", ("wynik", won), ("numer_etapu", 2)])
    for where, moves in ("pages", "-1700"), ("demonstration", "-2950"), ("second after it", "-3120"):
        yield follow(f"a tap of fire in the {where} starts the game", game, f"-400 {moves} F2 -60",
                     ["pokaz_opisy", "graj_etap"])
    yield follow("its line says so from the start, also after a RESET while a question stood there", game,
                 f"{TO_GAME} R7 -20 E5 -4500", ["info_komunikat", RESET, "pokaz_gre", "pokaz_plansze",
                                                ("linia_info", letters("POKAZ - FIRE LUB START: GRA".center(40)))])

def overlay():
    """In each world the two players cover the heroine's cell and nothing else. The board ends with the scan line of an
    interrupt."""
    for world, stage in worlds.items():
        y, x = divmod(part(stages[stage], "PLANSZA", BOARD).index(DORVA), COLUMNS)
        played = play(game, TO_GAME,
                      ["wcisniete", enter(stage), "dli_symbole", "ANTIC", "GTIA", ("gracz0", bytes(512))])
        top = int(re.search(r"ypos= *(\d+)", played.log)[1]) + 1 - 160
        yield (f"world {world + 1}: the overlay lies on the rows of her cell",
               {row % 256 for row, pixels in enumerate(played.steps[-1][1]) if pixels},
               {*range(top + 8 * y, top + 8 * y + 8)})
        yield ("in its column, fetched on each line from its page",
               re.findall(r"(?:HPOSP[01]|GRACTL|DMACTL|PMBASE)=..", played.log),
               ["DMACTL=3A", "PMBASE=B0", f"HPOSP0={48 + 4 * x:02X}", f"HPOSP1={48 + 4 * x:02X}", "GRACTL=02"])
    record = patched(stages[1], field["PLANSZA"], bytes(420) + bytes([DORVA, 0]))  # alone, row 10, column 20
    for keys, cell, columns, rows in (("R7", 421, [129, 129, 130, 131, 131, 132, 132], [80] * 7),
                                      ("U7", 380, [128] * 7, [79, 77, 76, 75, 73, 72, 72])):
        end = [(f"plansza+{cell}", BENEATH), (f"gracz1+{top + 8 * (cell // COLUMNS) + 8}", bytes(8))]
        played = play(build_game(record), f"{TO_GAME} {keys} -60",
                      ["graj_etap", *["takt_innych", "GTIA", ("linia", 0)] * 7, *end])
        yield (f"she glides to the next cell before the others' part of a tick ({keys})",
               ([int(column, 16) for column in re.findall("HPOSP0=(..)", played.log)],
                [step[1] - top for step in played.steps if step[0] == "linia"]), (columns, rows))
        yield "where she has the code that shows what lies beneath; below nothing is left of her", played.steps[-2:], end

def all_stages():
    for stage, record in stages.items():
        yield follow(f"stage {stage} as it was painted: board, tiles, colours, greeting", game, TO_GAME,
                     ["wcisniete", enter(stage), ("plansza", shown_board(record)),
                      ("zestaw", tiles(record[field["SWIAT"]])[:512]), ("kolory", part(record, "KOLORY", 12)),
                      ("linia_info+8", part(record, "NAZWA", 32))])
    for world, stage in worlds.items():  # in the 32nd frame all show their second drawing, in the 40th the first
        yield follow(f"world {world + 1}: tiles move to and fro", game, "-600",
                     ["wcisniete", enter(stage), *["ozyw_znaki"] * 32, ("zestaw+8", tiles(world)[520:]),
                      *["ozyw_znaki"] * 8, ("zestaw+8", tiles(world)[8:512])])

def full_panel(energy, time):
    """Steps after which the panel shows these bars and all its marks."""
    shown = {"energia": energy, "premia": time, "pochodnia": 1, "maszyna_stoi": 1, "monety": 16}
    return ["graj_etap", *(poke(label, value) for label, value in shown.items()), *["takt_innych"] * 5]

def bars():
    """The row below the figures: bars of five characters of 20, torch, machine, coins."""
    icon = int(re.search(r"^IKONA *= (\d+)", Path("game/src/atari.inc").read_text(), re.M)[1])
    bar, own, points = icon + 10, 0xC0, 0x80  # the colours of energy and masks
    energy = [icon + 3 | own, bar + 8 | own, bar + 8 | own, bar + 4 | own, bar | own, bar | own]
    time = [icon + 6 | points, bar + 3 | points, *[bar | points] * 4]
    marks = [icon + 7, icon + 8 | 0x40, 0, icon + 9]
    yield follow("bars, marks and coins, and figures above them", game, f"{TO_GAME} R7 -60",
                 [*full_panel(50, 7), ("panel_paskow", bytes([*energy, 0, *time, 0, *marks, *letters("16")])),
                  ("panel_cyfr+11", bytes(digit | own for digit in letters("50")))])

def other_games():
    yield follow("a test build shows its title lines; its only stage is the last one, whatever the stick does there",
                 build_game(stages[2]), f"-400 R60 F10 -60 {run_of(2)} -300",
                 ["wcisniete", *title_lines("ATAROWIEC.", "", "TEST ETAPU"), "ekran_wygranej"])
    record = patched(stages[1], field["PLANSZA"], [126, BENEATH, BENEATH + 128, 128])
    yield follow("127 and 255, the codes of her own cell, become those of the same tile", build_game(record), TO_GAME,
                 ["graj_etap", ("plansza", bytes([126, 126, 254, 128]))])
    record = patched(stages[1], field["PLANSZA"], shown_board(stages[1]))
    yield follow("a board without a heroine: a word, then the title", build_game(record), f"{TO_GAME} -100 F10 -100",
                 ["ekran_bez_dorvy", "rysuj_tytul"])
    for seed in 1, 2, 3:
        record = patched(Random(seed).randbytes(field["BAJTY"]), field["PLANSZA"] + 420, [DORVA])
        yield follow(f"any bytes are a stage, which goes on running and takes ESC ({seed})", build_game(record),
                     f"{HASTE} -300", ["ekran_konca", "wcisniete"])

def pace(system):
    """Boards full of what takes longest: no tick may take longer than its frame."""
    for full in ([36, 37, 38, 39, 3, 0], [54, 14, 23, 24, 17], [54], [23, 14], [18, 40, 41, 42, 24, 0],
                 [24, 25, 35, 8, 1], [43, 44, 45, 46, 19, 20, 0], [55, 0]):
        board = bytearray(full[(i * i + i * 7) % 31 % len(full)] for i in range(BOARD))
        board[420] = DORVA
        record = patched(patched(stages[1], field["PLANSZA"], board), field["CEL"], [99])
        yield follow(f"full frame rate on a board of tiles {full} ({system})", build_game(record),
                     f"{HASTE} L200 E5 L9 E5 -300", ["ekran_konca", ("spoznione", 0)], system)

def machines():
    for basic in "-nobasic", "-basic":
        yield follow(f"the system's screen is behind all that is loaded; RESET in a stage brings the title ({basic})",
                     game, f"{TO_GAME} {run_of(1)} -600",
                     ["start", ("RAMTOP", 0xC0), "graj_etap", "otworz", RESET, "wcisniete",
                      *title_lines("DORVA PLANSZOWNIK!", "", "")], basic)
    for machine in "-320xe", "-rambo", "-576xe", "-1088xe":
        yield follow(f"stage 1 is there on a larger machine ({machine})", game, f"{TO_GAME} -60",
                     ["wcisniete", "graj_etap", ("plansza", shown_board(stages[1]))], machine)
    yield follow("a machine of 64 KB shows what is missing", game, "-1000", ["stoj"], "-xl")

CHECKS = [(all_runs, "-pal"), (all_runs, "-ntsc"), (dying,), (keys,), (choice,), (tunes,), (music, "-pal", 50),
          (music, "-ntsc", 60), (records,), (idle_title,), (overlay,), (other_games,), (all_stages,), (bars,),
          (pace, "-pal"), (pace, "-ntsc"), (machines,)]

# Pictures for the documents.

def look(name):
    """Takes a picture a second later, while the game goes on."""
    return f"!(sleep 1; import -window root {temporary.name}/{name}.png) &"

def convert(picture, *words):
    subprocess.run(["convert", picture, *words], check=True)

def keep(*names):
    for name in names:
        convert(f"{temporary.name}/{name}.png", "+dither", "-colors", "64", "-strip", f"PNG8:docs/obrazy/gra-{name}.png")

def film():
    """The beginning of a stage's recorded run as a moving picture: one look after the other at the running game."""
    stage, first, last = 24, 101, 290
    looks = f"for n in $(seq {first} {last}); do xwd -silent -root -out {temporary.name}/$n.xwd; sleep 0.07; done"
    play(game, f"{TO_GAME} {run_of(stage)}",
         ["wcisniete", enter(stage), "takt_dorvy", f"!(sleep 0.3; {looks}) &", "policz_premie"], emulator=SHOWN)
    pictures = [Path(f"{temporary.name}/{number}.xwd") for number in range(first, last + 1)]
    seconds = pictures[-1].stat().st_mtime - pictures[0].stat().st_mtime
    convert("-delay", str(round(100 * seconds / (last - first))), *pictures, "-sample", "50%", "+dither",
            "-colors", "24", "-layers", "OptimizePlus", "-strip", "docs/obrazy/gra-film.gif")

def number_panel():
    """Enlarges the panel and numbers its parts, above and below it, as the table in the document does."""
    above, below = (41, 164, 281, 408, 571, 738), (166, 496, 688, 732, 876)
    places = [f"+{x}+1" for x in above] + [f"+{x}+114" for x in below]
    numbers = [word for number, place in enumerate(places, 1) for word in ("-annotate", place, str(number))]
    convert(f"{temporary.name}/panel.png", "-sample", "50%", "-crop", "320x31+8+188", "+repage", "-sample", "300%",
            "-bordercolor", "white", "-border", "0x20", "-gravity", "NorthWest", "-fill", "#c8102e",
            "-font", "src/qt/zasoby/czcionki/LiberationSans-Bold.ttf", "-pointsize", "16", *numbers,
            f"{temporary.name}/panel.png")

def renew_pictures():
    for picture in Path("docs/obrazy").glob("etap-??.png"):  # boards as the editor shows them, in their stages' colours
        stage = int(picture.stem[-2:])
        board, art = f"{temporary.name}/board.bmp", f"game/art/swiat{stages[stage][field['SWIAT']] + 1}.txt"
        subprocess.run([build / "game/tools/swiaty", "plansza", art, data / f"ETAPY/DETAP.{stage}", board], check=True)
        convert(board, "-strip", f"PNG8:{picture}")
    title = (data / "PLIKI/DP1.DTA").read_text("cp1250")
    whole = build_game(*stages.values(), lines=(title[:20], title[20:40], title[40:]))
    looks = [step for stage in stages for step in (enter(stage), look(f"etap{stage}"), "takt_dorvy")]
    for file, tokens, steps in (
            (whole, f"{TO_GAME} {run_of(1)} -400",
             ["wcisniete", look("tytul"), "graj", "otworz", look("wyjscie"), "policz_premie", "graj_etap"]),
            (build_game(stages[2]), f"{TO_GAME} {run_of(2)} -400 F10 -60",
             ["ekran_wygranej", look("wygrana"), "rysuj_tytul"]),
            (game, "R1 -99 " * 60, ["wcisniete", *looks]),  # a move every two seconds ends each greeting
            (game, f"{TO_GAME} R7 -150 S9 -60", [*full_panel(72, 41), look("panel"), "graj_etap"])):
        play(file, tokens, steps, emulator=SHOWN)
    film()
    number_panel()
    keep("panel", "tytul", "wyjscie", "wygrana", "etap8", "etap14", "etap24")
    small = [f"{temporary.name}/etap{stage}.png" for stage in stages]
    subprocess.run(["mogrify", "-sample", "50%", *small], check=True)
    subprocess.run(["montage", *small, "-tile", "4x8", "-geometry", "+2+2", f"{temporary.name}/etapy.png"], check=True)
    keep("etapy")

wrong = 0
with ThreadPoolExecutor(os.cpu_count()) as workers:
    for results in workers.map(lambda check: [*check[0](*check[1:])], CHECKS):
        for what, found, expected in results:
            wrong += found != expected
            print("ok: " + what if found == expected else f"FAILED: {what}: {found} instead of {expected}")
if with_pictures:
    renew_pictures()
sys.exit(wrong > 0)
