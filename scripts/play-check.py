#!/usr/bin/env python3
"""play-check.py [--pictures] [BUILD]: plays the built game in the emulator atari800 and looks into its memory. Without
the emulator it says so and ends with success. --pictures: also takes docs/obrazy/gra-*.png and etap-*.png again (needs
Xvfb, ImageMagick and xwd)."""
import os
import re
import shutil
import subprocess
import sys
from collections import defaultdict, namedtuple
from concurrent.futures import ThreadPoolExecutor
from pathlib import Path
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

BOARD, DORVA, BENEATH = 800, 63, 127
address = {}  # of each label of the game
for line in (build / "game/src/szablon.lbl").read_text().splitlines():
    address.setdefault(line.split()[2][1:], int(line.split()[1], 16))
field = {name: int(offset)  # offsets of the fields of a stage record
         for name, offset in re.findall(r"^ETAP_(\w+) *= *(\d+)", Path("game/src/rekord.inc").read_text(), re.M)}
stages = {number: (data / f"ETAPY/DETAP.{number}").read_bytes() for number in range(1, 33)}
temporary = TemporaryDirectory()

def part(record, name, size):
    return record[field[name]:field[name] + size]
def shown_board(record):
    return part(record, "PLANSZA", BOARD).replace(bytes([DORVA]), bytes([BENEATH]), 1)
def patched(record, offset, new):
    return record[:offset] + bytes(new) + record[offset + len(new):]

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

# Commands to the emulator's monitor. A label of the game means: go on until the program gets there.
label_at = {}  # the labels at which games stop, by address

def until(label, go_on="CONT"):
    label_at[address[label]] = label
    return f"BPC {address[label]:X}\n{go_on}"

def dump(label, size=1, number=""):
    return f"WRITE {address[label]:X} {address[label] + size - 1:X} {label}{number}"

def enter(stage):  # where a game has stopped at graj_etap
    return f"C {address['numer_etapu']:X} {stage:X}\nCONT {address['graj']:X}"

Played = namedtuple("Played", "stops dumps log")  # where the game stopped, pieces of its memory, the monitor's words

def play(file, tokens, commands, *machine, shown=False):
    """Runs a game with recorded input: as fast as possible, or shown. The machine is a 130XE unless another is given."""
    folder = Path(mkdtemp(dir=temporary.name))
    recording = "Atari800 event recording, version: 1\n10387\n" + "".join(map(frames, tokens.split()))
    (folder / "input").write_text(recording)
    (folder / "config").touch()
    options = ["-config", "config", "-nobasic", "-xl-rev", "altirra", "-nosound", "-playback", "input", "-xe",
               "-pokeyrec", "-pokeyrec-ascii", "-pokeyrec-file", "pokey", *machine]
    environment = os.environ | {"SDL_AUDIODRIVER": "dummy"}
    if not shown:
        options += ["-turbo"]
        environment["SDL_VIDEODRIVER"] = "dummy"
    words = [until(command) if command in address else command for command in commands]
    log = subprocess.run(["timeout", "300", "atari800", *options, "-run", file, "-monitor"], cwd=folder,
                         env=environment, input="\n".join([*words, "QUIT", ""]), text=True, errors="replace",
                         stdout=subprocess.PIPE, stderr=subprocess.STDOUT).stdout
    stops = [label_at[int(stop, 16)] for stop in re.findall(r"^\(breakpoint at (\w+)\)", log, re.M)]
    return Played(stops, defaultdict(bytes, {path.name: path.read_bytes() for path in folder.iterdir()}), log)

def test_build(*records):
    """A game like the one that a test build makes: the stage replaces stage 1 and is marked as the last one. Or a game
    of several stages."""
    folder = Path(mkdtemp(dir=temporary.name))
    files = [folder / f"etap{which}" for which in range(len(records))]
    for file, record in zip(files, records):
        file.write_bytes(record)
    texts = ["Żółty Atarowiec", "", "TEST ETAPU"]
    subprocess.run([game_maker, game, folder / "test.xex", *texts, *files], check=True)
    return folder / "test.xex"

def title_lines(file):
    """The bytes that the three title lines of a game put on the text screen, from column 8 on."""
    lines = []
    for line in subprocess.check_output([game_maker, "--tytul", file], text=True).splitlines():
        start, *text = map(int, line.split())
        lines.append(patched(bytes(24), start, text[:text.index(155)] if 155 in text else text))
    return lines

def shown_lines(played):
    return [played.dumps["ekran"][40 * row + 8:][:24] for row in (0, 2, 4)]

# Each check yields what it looked at, what it found and what it expects.

def title():
    played = play(game, TO_GAME, ["wcisniete", dump("ekran", 600)])
    yield "the title shows its three lines at their start columns", shown_lines(played), title_lines(game)

def all_runs(system):
    """The whole game in one go. A stage waits for the stick, so there may be any time between two."""
    commands = []
    for stage in stages:
        commands += ["graj_etap", "otworz", dump("brak_masek", 1, stage), "policz_premie",
                     dump("numer_etapu", 1, stage)]
    tokens = " ".join([TO_GAME, *(f"{run_of(stage)} -200" for stage in stages)])
    played = play(game, tokens, [*commands, "ekran_wygranej"], system)
    yield (f"all stages are entered, their exits open, she goes through, to the last screen ({system})", played.stops,
           ["graj_etap", "otworz", "policz_premie"] * 32 + ["ekran_wygranej"])
    yield (f"each is the next one, and no mask is missing ({system})",
           [(*played.dumps[f"numer_etapu{stage}"], *played.dumps[f"brak_masek{stage}"]) for stage in stages],
           [(stage, 0) for stage in stages])

def dying():
    """She steps into a fire and stays there, three times."""
    beside = stages[1].index(DORVA, field["PLANSZA"]) - 1
    commands = [command for lives in (3, 2, 1) for command in ("graj_etap", dump("zycia", 1, lives))]
    played = play(test_build(patched(stages[1], beside, [35, DORVA, 35])), f"{TO_GAME} R7 -300 R7 -300 R7 -400",
                  [*commands, "ekran_konca", "wcisniete"])
    yield "three tries, then the end of the game", played.stops, ["graj_etap"] * 3 + ["ekran_konca", "wcisniete"]
    dumps = play(game, f"{TO_GAME} R7 -20 E5 -9 E5 {'F3 -3 ' * 60}",
                 ["ekran_konca", "WRITE 14 14 shown", "rysuj_tytul", "WRITE 14 14 gone"]).dumps
    yield ("who hammers fire sees the end as well", (dumps["gone"][0] - dumps["shown"][0]) % 256 > 80, True)
    yield "a life is lost each time", [*map(played.dumps.get, ("zycia3", "zycia2", "zycia1"))], [b"\3", b"\2", b"\1"]

def keys():
    """Each key means the same in the greeting, in play and in a pause; START and ESC when pressed again in a second."""
    for phase, before in ("greeting", "-60"), ("play", "R7 -20"), ("pause", "R7 O5 -20"):
        for presses, effect in ("E5 -40 E5", "ekran_konca"), ("T5 -40 T5", "nowa_gra"), ("S5", "wczytaj_etap"):
            played = play(game, f"{TO_GAME} {before} {presses} -60", ["graj_etap", effect])
            yield f"{presses} in the {phase}", played.stops, ["graj_etap", effect]
        played = play(game, f"{TO_GAME} {before} E200 -60 E5 -70 E5 -70 T5 -70 T5 -70 T5 E5 -30 S5 -60",
                      ["graj_etap", "wczytaj_etap", dump("wynik"), "graj_etap", dump("zycia"), dump("premia")])
        yield (f"ESC held, presses far apart or of two keys in the {phase} end nothing, SELECT begins anew",
               (played.stops, played.dumps["wynik"]), (["graj_etap", "wczytaj_etap", "graj_etap"], bytes([4])))
        yield ("that costs no life, but the bonus of a try begun", (played.dumps["zycia"], played.dumps["premia"]),
               (bytes([3]), bytes([99 if phase == "greeting" else 0])))
        played = play(game, f"{TO_GAME} {before} O5 -200 O5 R60 -100", ["graj_etap", "info_powitanie", dump("pauza")])
        yield (f"OPTION in the {phase}: a pause ends, and its word goes at once",
               (played.stops, played.dumps["pauza"]), (["graj_etap", "info_powitanie"], bytes([0])))

    for system, stop in ("-pal", "wczytaj_etap"), ("-ntsc", "ekran_konca"):
        played = play(game, f"{TO_GAME} R7 -20 E5 -50 E5 -60 S5 -60", ["graj_etap", stop], system)
        yield f"55 frames are more than a second on PAL only ({system})", played.stops, ["graj_etap", stop]
    ticks = [command for more in (40, 50)
             for command in (*["takt_innych"] * more, dump("linia_info", 40, more))]
    dumps = play(game, f"{TO_GAME} R7 -20 E5 -5 F3 -90", ["graj_etap", *ticks]).dumps
    lines = ["".join(chr(code + 32) for code in dumps[f"linia_info{more}"]).strip() for more in (40, 50)]
    yield "a question stays; another message waits", lines, ["ESC JESZCZE RAZ - KONIEC GRY", "NIE MASZ BOMBY"]
    dumps = play(game, f"{TO_GAME} R7 -20 RS5 R90 -5 R5", ["graj_etap", "graj_etap", "WRITE 14 14 entered", "takt_dorvy",
                                                           "WRITE 14 14 moved"]).dumps
    yield ("a stick held from before doesn't end the greeting",
           (dumps["moved"][0] - dumps["entered"][0]) % 256 > 80, True)

def choice():
    """The stage that the title offers, and where START in play goes."""
    offered = ["tytul", "wcisniete", dump("numer_etapu", 1, "offered")]
    played = play(game, "-400 R120 -20 F10 -60 E5 -9 E5 -60 F10 -100",
                  ["wcisniete", "wez_etap", "WRITE 22F 22F picture1", "wez_etap", "WRITE 22F 22F picture2",
                   "nazwij_etap", "wcisniete", dump("ekran", 600), "graj_etap", dump("numer_etapu"), "ekran_konca",
                   *offered])
    yield ("the title stays on the screen while a stage is chosen",
           [played.dumps["picture1"], played.dumps["picture2"]], [bytes([34])] * 2)
    yield "and names it by its greeting", played.dumps["ekran"][7 * 40 + 4:][:32], part(stages[3], "NAZWA", 32)
    chosen = played.dumps["numer_etapu"]
    yield "the held stick chooses on, from stage to stage", bytes([3]) < chosen < bytes([25]), True
    yield "the title offers it again", played.dumps["numer_etapuoffered"], chosen

    entries = [command for entry in range(4) for command in ("graj_etap", dump("numer_etapu", 1, entry))]
    dumps = play(game, f"{TO_GAME} {run_of(1)} -300 T5 -9 T5 -60 {run_of(1)} -300 E5 -9 E5 -60 T10 -30 F10 -100",
                 [*entries, "ekran_konca", *offered]).dumps
    yield ("START goes back to the stage chosen; after the end of a game the title offers the stage that was reached",
           [*b"".join(dumps[f"numer_etapu{which}"] for which in (0, 1, 2, 3, "offered"))], [1, 2, 1, 2, 2])

    dumps = play(game, f"-400 L5 -30 F10 -60 {run_of(32)} -900 T10 -30 F10 -60",
                 ["graj_etap", dump("numer_etapu"), "ekran_wygranej", *offered]).dumps
    yield ("after the victory it offers the first one", (dumps["numer_etapu"], dumps["numer_etapuoffered"]),
           (bytes([32]), bytes([1])))

def tunes():
    memory = bytes(0x8000) + game.read_bytes()[8468:]  # as it is loaded
    def word(at):
        return memory[at] + 256 * memory[at + 1]
    for tune in "las", "jaskinie", "swiatynia", "tytulowa", "przeszla", "strata", "koniec", "wygrana":
        section, ends = address[tune] + 6, set()
        while word(section) > 255:
            for phrase in word(section), word(section + 2):
                left = memory[address[tune] + 1]
                while left > 0:
                    left -= memory[address["dlugosci"] + memory[phrase] // 32]
                    phrase += 1
                ends.add(left)
            section += 4
        yield f"melody and bass of {tune} end with their sections", ends, {0}

def music(system, frame_rate):
    """The emulator records the sound chip: nine bytes a frame, AUDC3 and AUDC4 behind the pitches of the tune."""
    tokens = "-400 F10 -500 O5 -100 O5 -100 M50 -100 M5 -100 E5 -9 E5 -400 T10 -99 T10 -60 O5 -60 M5 -400 M5 -60 M5 -20"
    played = play(game, tokens, ["ekran_konca", "graj", "przelacz_muzyke", until("rysuj_tytul", "WARMSTART"),
                                 "przelacz_muzyke", "przelacz_muzyke", "ekran_konca"], system)
    sound = [bytes.fromhex(line) for line in played.dumps["pokey"].decode().split()]
    heard = {300: True, 900: True, 1000: False, 1100: True, 1150: False, 1250: False, 1350: True, 1450: True,
             2030: False, 2250: True, 2490: False, 2530: True}
    yield (f"the tune waits in a pause, the key M stops it, RESET in a pause brings it back ({system})",
           {frame: any(sound[frame][voice] % 16 for voice in (5, 7)) for frame in heard}, heard)
    first = next(frame for frame, registers in enumerate(sound) if registers[4] == 64)  # B, not in the title's tune
    yield f"its tempo is the same on every system ({system})", 6.4 < (first - 410) / frame_rate < 7, True

def records():
    tokens = f"-400 F10 -60 {run_of(1)} -300 E5 -9 E5 -60 U30 -9 R5 -9 D5 -9 F9 -9 F9 -60 F9 -400 L9 -9"
    dumps = play(game, tokens, ["ekran_konca", dump("punkty", 3), "rysuj_tytul", until("rysuj_tytul", "WARMSTART"),
                                "pisz_wyniki", "etap_probny", dump("ekran", 600, "table"), "pisz_rekord", "wcisniete",
                                dump("ekran", 600), dump("premie", 2)]).dumps
    points = [16 + digit for byte in dumps["punkty"] for digit in divmod(byte, 16)]
    yield ("initials B, space and A are chosen; after RESET too the title shows the result by turns with the keys",
           [*dumps["ekrantable"][10 * 40 + 13:][:13]], [17, 14, 0, 34, 0, 33, 0, *points])
    played = play(game, f"-400 F10 -60 {run_of(1)} -300 E5 -9 E5 -60 T10 -90", ["wpisz_inicjaly", "rysuj_tytul"])
    yield "START takes the initials as they are, and the closing screen stays", played.stops, ["wpisz_inicjaly"]
    yield ("the finished stage has a star, dark on light as the chosen one, and its best bonus",
           (dumps["ekran"][8 * 40 + 4:][:32], [*dumps["ekran"][6 * 40 + 34:][:2]]),
           (bytes([10 + 128] + [14] * 31), [16 + digit for digit in divmod(dumps["premie"][0] - 1, 10)]))
    kept = ["ekran_wygranej", "czekaj_na_puszczenie", dump("cegla"), dump("wyniki", 30), dump("premie", 32)]
    both = test_build(stages[1], stages[2])
    for what, file, moves, end in (("a game from 1 on", both, f"{run_of(1)} -300", (12, 1, 1)),
                                   ("one from 2 on", both, "", (17, 1, 1)),
                                   ("a test game", test_build(stages[2]), "", (17, 0, 0))):
        dumps = play(file, f"-400 {'-9' if moves else 'R6 -9'} F10 -60 {moves} {run_of(2)} -600 F9 -9", kept).dumps
        yield (f"{what}: its end, results and stars", (*dumps["cegla"], any(dumps["wyniki"]), any(dumps["premie"])), end)

def pages():
    played = play(game, "-1700 R9 -1300", ["pokaz_opis", dump("logo", 80), "rysuj_strone", "rysuj_tytul", "pokaz_opis",
                                           dump("numer_etapu")])
    yield ("an idle title shows page after page of tiles, until the stick moves, which does nothing else",
           (played.stops, *played.dumps["logo"][41:43], *played.dumps["numer_etapu"]),
           (["pokaz_opis", "rysuj_strone", "rysuj_tytul", "pokaz_opis"], 12, 0, 1))

def demonstration():
    """After the pages. It ends at the exit or with a move of the stick, and the chosen stage stays."""
    for what, file, moves, won in (("the sample's first stage is played to its end", game, "-3800", 1),
                                   ("a move of the stick ends that", game, "-3250 L9 -99", 0),
                                   ("a game with another one has none", test_build(stages[2], stages[3]), "-3250", 0)):
        played = play(file, f"-400 R9 {moves}", ["pokaz_gre", "rysuj_tytul", dump("wynik"), dump("numer_etapu")])
        yield (what, (played.stops, *played.dumps["wynik"], *played.dumps["numer_etapu"]),
               (["pokaz_gre", "rysuj_tytul"], won, 2))

    for where, moves in ("pages", "-1700"), ("demonstration", "-2950"), ("second after it", "-3120"):
        played = play(game, f"-400 {moves} F2 -60", ["pokaz_opisy", "graj_etap"])
        yield f"a tap of fire in the {where} starts the game", played.stops, ["pokaz_opisy", "graj_etap"]
    dumps = play(game, f"{TO_GAME} R7 -20 E5 -4500",
                 ["info_komunikat", until("rysuj_tytul", "WARMSTART"),
                  "pokaz_gre", "pokaz_plansze", dump("linia_info", 40)]).dumps
    yield ("its line says so from the start, also after a RESET while a question stood there",
           "".join(chr(code + 32) for code in dumps["linia_info"]).strip(), "POKAZ - FIRE LUB START: GRA")

def overlay():
    """In each world the two players cover the heroine's cell and nothing else."""
    commands = ["wcisniete", f"BPC {address['graj_etap']:X}"]
    for world in range(3):
        first = min(stage for stage in stages if stages[stage][field["SWIAT"]] == world)
        commands += [enter(first), "GTIA", "ANTIC", dump("gracz0", 512, world), dump("dorva_x", 1, world),
                     dump("dorva_y", 1, world)]
    played = play(game, "-9000", [*commands, dump("lista_planszy", 12)])
    # The board's first scan line: the picture begins at line 8, then come the lines in front of the board.
    top, instructions = 8, iter(played.dumps["lista_planszy"])
    while (instruction := next(instructions)) % 16 != 4:
        if instruction % 16 == 0:
            top += instruction // 16 % 8 + 1
        else:
            top += 8
            next(instructions), next(instructions)
    places = re.findall(r"HPOSP0=(..) *HPOSP1=(..)", played.log)
    for world in range(3):
        (x,), (y,) = played.dumps[f"dorva_x{world}"], played.dumps[f"dorva_y{world}"]
        rows = sorted({i % 256 for i, pixels in enumerate(played.dumps[f"gracz0{world}"]) if pixels})
        cell = [*range(top + 8 * y, top + 8 * y + 8)]
        yield f"world {world + 1}: the overlay lies on the rows of her cell", rows, cell
        yield "and in its column", places[world], (f"{48 + 4 * x:02X}",) * 2  # the board begins at colour clock 48
    yield ("players are fetched, on each line, from their page",
           {*re.findall(r"GRACTL=..|DMACTL=..|PMBASE=..", played.log)}, {"DMACTL=3A", "GRACTL=02", "PMBASE=B0"})
    for keys, label, left in ("R7", "HPOSP0", (3, 3, 2, 1, 1, 0, 0)), ("U7", "linia", (-7, -5, -4, -3, -1, 0, 0)):
        record = patched(stages[1], field["PLANSZA"] + 420, [DORVA, 0])  # alone, free to go
        record = patched(record, field["PLANSZA"], [0] * 420)
        ticks = [command for frame in range(7) for command in ("takt_innych", "GTIA", dump("linia", 1, frame))]
        played = play(test_build(record), f"{TO_GAME} {keys} -60",
                      ["graj_etap", *ticks, dump("dorva_x"), dump("dorva_y"), dump("plansza", BOARD)])
        (x,), (y,) = played.dumps["dorva_x"], played.dumps["dorva_y"]
        found = {"HPOSP0": [int(at, 16) - 48 - 4 * x for at in re.findall("HPOSP0=(..)", played.log)],
                 "linia": [played.dumps[f"linia{frame}"][0] - top - 8 * y for frame in range(7)]}
        yield (f"she glides to the next cell before the others' part of a tick ({keys})", found[label],
               [-way for way in left])
        yield "where she has the code that shows what lies beneath", played.dumps["plansza"][40 * y + x], BENEATH

def only_stage():
    file = test_build(stages[2])
    played = play(file, f"-400 R60 F10 -60 {run_of(2)} -300", ["wcisniete", dump("ekran", 600), "ekran_wygranej"])
    yield "a test build shows its title lines", shown_lines(played), title_lines(file)
    yield ("its only stage is the last one, whatever the stick does on the title", played.stops,
           ["wcisniete", "ekran_wygranej"])

def all_stages():
    commands = ["wcisniete", f"BPC {address['graj_etap']:X}"]
    for stage in stages:
        commands += [enter(stage), dump("plansza", BOARD, stage), dump("zestaw", 512, stage),
                     dump("kolory", 12, stage), dump("linia_info", 40, stage)]
    dumps = play(game, "-9000", commands).dumps
    for stage, record in stages.items():
        tiles = (data / f"OBIEKTY/ORN_EXPORT/FNT{record[field['SWIAT']]}1.ORN.ND").read_bytes()
        shown = [dumps[f"{label}{stage}"] for label in ("plansza", "zestaw", "kolory", "linia_info")]
        yield (f"stage {stage} as it was painted: board, tiles, colours, greeting", [*shown[:3], shown[3][8:]],
               [shown_board(record), tiles[:512], part(record, "KOLORY", 12), part(record, "NAZWA", 32)])

def motion():
    """In each world the tiles that have a second drawing show it, and then the first again."""
    second, first = 32, 40  # frames in which all of them show one
    commands = ["wcisniete"]
    for world in range(3):
        number = min(stage for stage in stages if stages[stage][field["SWIAT"]] == world)
        commands += [f"BPC {address['graj_etap']:X}", enter(number), *["ozyw_znaki"] * second, dump("zestaw", 512, f"{world}b"),
                     *["ozyw_znaki"] * (first - second), dump("zestaw", 512, f"{world}a")]
    dumps = play(game, "-9000", commands).dumps
    for world in range(3):
        tiles = (data / f"OBIEKTY/ORN_EXPORT/FNT{world}1.ORN.ND").read_bytes()
        yield (f"world {world + 1}: tiles move to and fro", [dumps[f"zestaw{world}{which}"][8:] for which in "ba"],
               [tiles[520:], tiles[8:512]])

def full_panel(energy, time):
    """Commands after which the panel shows these bars and all its marks."""
    poked = {"energia": energy, "premia": time, "pochodnia": 1, "maszyna_stoi": 1, "monety": 16}
    return ["graj_etap", *(f"C {address[name]:X} {value:X}" for name, value in poked.items()), *["takt_innych"] * 5]

def bars():
    """The row below the figures: bars of five characters of 20, torch, machine, coins."""
    commands = [*full_panel(50, 7), dump("panel_paskow", 20), dump("panel_cyfr", 20)]
    dumps = play(game, f"{TO_GAME} R7 -60", commands).dumps
    icon = int(re.search(r"^IKONA *= (\d+)", Path("game/src/atari.inc").read_text(), re.M)[1])
    bar, own, points = icon + 10, 0xC0, 0x80  # the colours of energy and masks
    yield ("bars, marks and coins", [*dumps["panel_paskow"]],
           [icon + 3 | own, bar + 8 | own, bar + 8 | own, bar + 4 | own, bar | own, bar | own, 0,
            icon + 6 | points, bar + 3 | points, *[bar | points] * 4, 0, icon + 7, icon + 8 | 0x40, 0, icon + 9, 17, 22])
    yield "and figures above them", [*dumps["panel_cyfr"][11:13]], [21 | own, 16 | own]

def foreign_codes():
    """The codes that her own cell has look like others of their kind elsewhere."""
    record = patched(stages[1], field["PLANSZA"], [126, BENEATH, BENEATH + 128, 128])
    dumps = play(test_build(record), f"{TO_GAME} -60", ["graj_etap", dump("plansza", 4)]).dumps
    yield "127 and 255 become 126 and 254", [*dumps["plansza"]], [126, 126, 254, 128]

def empty_board():
    empty = part(stages[1], "PLANSZA", BOARD).replace(bytes([DORVA]), bytes([0]))
    played = play(test_build(patched(stages[1], field["PLANSZA"], empty)), f"{TO_GAME} -100 F10 -100",
                  ["ekran_bez_dorvy", "rysuj_tytul"])
    yield "a board without a heroine: a word, then the title", played.stops, ["ekran_bez_dorvy", "rysuj_tytul"]

def any_bytes():
    """Stages of 931 random bytes and a heroine: the game goes on running and takes ESC."""
    for seed in 1, 2, 3:
        x, record = seed, bytearray()
        for _ in range(field["BAJTY"]):
            x = x * 16807 % 2147483647
            record.append(x // 128 % 256)
        record[field["PLANSZA"] + 420] = DORVA
        played = play(test_build(record), f"{HASTE} -300", ["ekran_konca", "wcisniete"])
        yield f"any bytes are a stage ({seed})", played.stops, ["ekran_konca", "wcisniete"]

def pace(system):
    """Boards full of what takes longest: no tick may take longer than its frame."""
    for full in ([36, 37, 38, 39, 3, 0], [54, 14, 23, 24, 17], [54], [23, 14], [18, 40, 41, 42, 24, 0],
                 [24, 25, 35, 8, 1], [43, 44, 45, 46, 19, 20, 0], [55, 0]):
        board = bytearray(full[(i * i + i * 7) % 31 % len(full)] for i in range(BOARD))
        board[420] = DORVA
        record = patched(patched(stages[1], field["PLANSZA"], board), field["CEL"], [99])
        played = play(test_build(record), f"{HASTE} L200 E5 L9 E5 -300", ["ekran_konca", dump("spoznione")], system)
        yield (f"full frame rate on a board of tiles {full} ({system})", (played.stops, played.dumps["spoznione"]),
               (["ekran_konca"], bytes([0])))

def reset(basic):
    to_title = until("rysuj_tytul", "WARMSTART")
    played = play(game, f"{TO_GAME} {run_of(1)} -600", ["start", "WRITE 6A 6A top", "graj_etap", "otworz", to_title,
                                                       "wcisniete", dump("ekran", 600)], basic)
    yield (f"RESET in the middle of a stage brings the title ({basic})", played.stops,
           ["start", "graj_etap", "otworz", "rysuj_tytul", "wcisniete"])
    yield "and the title is whole", shown_lines(played), title_lines(game)
    yield "the system's screen stood behind all that is loaded", played.dumps["top"], bytes([0xC0])

def machines():
    for machine in "-320xe", "-rambo", "-576xe", "-1088xe":
        played = play(game, f"{TO_GAME} -60", ["wcisniete", "graj_etap", dump("plansza", BOARD)], machine)
        yield (f"stage 1 is there on a larger machine ({machine})", played.dumps["plansza"],
               shown_board(stages[1]))
    yield "a machine of 64 KB shows what is missing", play(game, "-1000", ["stoj"], "-xl").stops, ["stoj"]

CHECKS = [(title,), (all_runs, "-pal"), (all_runs, "-ntsc"), (dying,), (keys,), (choice,), (tunes,), (music, "-pal", 50),
          (music, "-ntsc", 60), (records,), (pages,), (demonstration,), (overlay,), (only_stage,), (all_stages,),
          (motion,), (foreign_codes,), (bars,), (empty_board,), (any_bytes,), (pace, "-pal"), (pace, "-ntsc"), (reset, "-nobasic"),
          (reset, "-basic"), (machines,)]

# Pictures for the documents.

def look(name):
    """Takes a picture a second later, while the game goes on."""
    return f"!(sleep 1; import -window root -crop 672x480+0+0 +repage {temporary.name}/{name}.png) &"

def keep(*names):
    for name in names:
        subprocess.run(["convert", f"{temporary.name}/{name}.png", "+dither", "-colors", "64", "-strip", "-define",
                        "png:exclude-chunks=date,time", f"PNG8:docs/obrazy/gra-{name}.png"], check=True)

FILM_STAGE, FILM_PICTURES = 24, 190

def film(*machine):
    """The beginning of a stage's recorded run as a moving picture: one look after the other at the running game."""
    pictures = [Path(f"{temporary.name}/film{number}.xwd") for number in range(101, 101 + FILM_PICTURES)]
    looks = "; ".join(f"xwd -silent -root -out {picture}; sleep 0.07" for picture in pictures)
    (Path(temporary.name) / "looks").write_text(f"sleep 0.3; {looks}\n")
    play(game, f"{TO_GAME} {run_of(FILM_STAGE)}",
         ["wcisniete", f"BPC {address['graj_etap']:X}", enter(FILM_STAGE), "takt_dorvy",
          f"!sh {temporary.name}/looks &", "policz_premie"], *machine, shown=True)
    seconds = pictures[-1].stat().st_mtime - pictures[0].stat().st_mtime
    subprocess.run(["convert", "-delay", str(round(100 * seconds / (FILM_PICTURES - 1))), *pictures, "-crop", "672x480+0+0",
                    "+repage", "-sample", "50%", "+dither", "-colors", "24", "-layers", "OptimizePlus", "-strip",
                    "docs/obrazy/gra-film.gif"], check=True)

# Where the numbers of the panel's table stand, above and below it.
PANEL_PLACES = [*((x, 1) for x in (41, 164, 281, 408, 571, 738)), *((x, 114) for x in (166, 496, 688, 732, 876))]

def renew_pictures():
    for picture in Path("docs/obrazy").glob("etap-??.png"):  # boards as the editor shows them, in their stages' colours
        stage = int(picture.stem[-2:])
        board, art = f"{temporary.name}/board.bmp", f"game/art/swiat{stages[stage][field['SWIAT']] + 1}.txt"
        subprocess.run([build / "game/tools/swiaty", "plansza", art, data / f"ETAPY/DETAP.{stage}", board], check=True)
        subprocess.run(["convert", board, "-strip", f"PNG8:{picture}"], check=True)
    reading, writing = os.pipe()
    display = subprocess.Popen(["Xvfb", "-displayfd", str(writing), "-noreset", "-screen", "0", "672x480x24"],
                               pass_fds=[writing], stderr=subprocess.DEVNULL)
    os.environ["DISPLAY"] = ":" + os.read(reading, 16).decode().strip()
    machine = ["-pal", "-win-width", "672", "-win-height", "480"]
    title, built = (data / "PLIKI/DP1.DTA").read_text("cp1250"), f"{temporary.name}/built.xex"
    files = [data / f"ETAPY/DETAP.{stage}" for stage in stages]
    subprocess.run([game_maker, game, built, title[:20], title[20:40], title[40:], *files], check=True)
    play(built, f"{TO_GAME} {run_of(1)} -100 {run_of(2)} -400",
         ["wcisniete", look("tytul"), "graj", "otworz", look("wyjscie"), "policz_premie", "graj_etap", "otworz",
          "policz_premie"], *machine, shown=True)
    play(test_build(stages[2]), f"{TO_GAME} {run_of(2)} -400 F10 -60",
         ["ekran_wygranej", look("wygrana"), "rysuj_tytul"], *machine, shown=True)
    commands = ["wcisniete"]
    for stage in stages:
        commands += [f"BPC {address['graj_etap']:X}", enter(stage), look(f"etap{stage}"), "takt_dorvy"]
    play(game, "R1 -99 " * 60, commands, *machine, shown=True)  # a move every two seconds ends each greeting
    play(game, f"{TO_GAME} R7 -150 S9 -60", [*full_panel(72, 41), look("panel"), "graj_etap"], *machine, shown=True)
    film(*machine)
    display.terminate()
    numbers = [word for number, (x, y) in enumerate(PANEL_PLACES, 1)
               for word in ("-annotate", f"+{x}+{y}", str(number))]
    subprocess.run(["convert", f"{temporary.name}/panel.png", "-sample", "50%", "-crop", "320x31+8+188", "+repage",
                    "-sample", "300%", "-bordercolor", "white", "-border", "0x20", "-gravity", "NorthWest", "-fill",
                    "#c8102e", "-font", "src/qt/zasoby/czcionki/LiberationSans-Bold.ttf", "-pointsize", "16", *numbers,
                    f"{temporary.name}/panel.png"], check=True)
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
