/* The player of the stages, in the real rules:
     gracz play STAGE RUN      plays a recorded run; ends with 0 if Dorva goes through the exit
     gracz search STAGE RUN    follows the plan of a run with care and prints a new run
     gracz fearless STAGE RUN  follows the plan without any fear, with three lives: prints the lives lost, whether it
                               got through ("yes" or "no"), and the energy left

   STAGE is a stage file, RUN a text whose first line is the plan; the rest is the recording. Both consist of letters
   with counts: `R12` is twelve steps to the right (L R U D), `F1` the trigger, `-3` waits for three steps. A step is a
   tap of the stick, six ticks in all. In a plan, `12,7` means: go to column 12 of row 7, and `*`: take all masks, keys
   and the torch within reach and go through the exit. Every plan ends with `*`.

   The careful player tries out, in the real rules, what happens if it goes on. If that hurts, it also tries to wait or
   to step aside first, and does what hurts least. It knows nothing else of dangers, so a stage that it finishes can be
   finished. */
#include "reguly.h"
#include <ctype.h>
#include <fcntl.h>
#include <stdio.h>
#include <string.h>
#include <unistd.h>

enum { TRIES = 6, STEPS_MAX = 1500, PATIENCE = 150, TAP = 2, UNREACHED = 0xFFFF, NEVER = 255 };
enum { MOVING = 61 };                                /* creatures and smoke: in the way now, but not for long */
enum { WAIT = 4, TRIGGER = 5, EVERYTHING = 0xFFFE }; /* WAIT and TRIGGER follow the four directions */
enum { IDEAS = 32, WAITS = 6, MOVES = 3, DEATH = 9000 };
enum { EARLIER = 4, STEPS_APART = 10, RETURNS = 60 };

/* What a cell costs to enter, by tile; NEVER: it can't be entered. For doors and the exit see set_prices. A bomb is
   dear, since it may be part of a chain: it is taken where the plan says so. */
static const byte prices[64] = {
    4,  4,     120,   4,     4,     NEVER, NEVER, NEVER, 12,    NEVER, NEVER, 24,    4,     4,     90,    NEVER,
    4,  NEVER, NEVER, 40,    40,    40,    40,    NEVER, 61,    61,    61,    61,    61,    61,    61,    61,
    61, 61,    4,     100,   61,    61,    61,    61,    NEVER, NEVER, NEVER, 40,    40,    40,    40,    40,
    40, 160,   NEVER, NEVER, NEVER, NEVER, NEVER, NEVER, NEVER, 4,     NEVER, NEVER, NEVER, NEVER, NEVER, NEVER};
static const byte fear[4] = {60, 60, 30, 10}; /* by the distance to a creature */

static const int neighbour[4] = {-1, 1, -KOLUMNY, KOLUMNY};
static const char letters[] = "LRUD-F";
static const byte stick_states[4] = {15 - KIJ_LEWO, 15 - KIJ_PRAWO, 15 - KIJ_GORA, 15 - KIJ_DOL};

static byte record[ETAP_BAJTY];
static char text[6000];         /* the plan, once the recording is cut off */
static char* plan;              /* the part of it that is still to be done */
static char run[STEPS_MAX + 8]; /* a letter for each step */
static unsigned length;
static unsigned last_progress; /* the last step with any progress */
static unsigned progress;
static byte wounds; /* energy lost since it was set to 0, without what wading takes */
static byte fearless;
static unsigned random_state;

static byte price[POLA];
static unsigned distance[POLA];
static byte came_by[POLA];
static byte is_queued[POLA];
static unsigned queue[1024];
static byte way[POLA]; /* the way to the goal, its last step first */
static unsigned way_steps;
static byte way_from_here[POLA]; /* the way before any idea was tried */
static unsigned steps_from_here;

/* The state of the rules at a moment. */
struct moment {
    byte plansza[POLA], pod[POLA], stan[POLA], zapach[POLA], zp[128], bss[512];
    unsigned length, random_state;
};
static struct moment now;              /* before ideas are tried */
static struct moment earlier[EARLIER]; /* moments to return to after a wound, the latest one last */
static byte earlier_count;
static byte returns_left; /* how often this try may still return to one */

/* An idea is what to do before going on: up to three moves, each of a number of steps. */
static byte move[IDEAS][MOVES], count[IDEAS][MOVES];

static void save(struct moment* c) {
    memcpy(c->plansza, plansza, POLA);
    memcpy(c->pod, pod, POLA);
    memcpy(c->stan, stan, POLA);
    memcpy(c->zapach, zapach, POLA);
    memcpy(c->zp, zp_begin, zp_end - zp_begin);
    memcpy(c->bss, bss_begin, bss_end - bss_begin);
    c->length = length;
    c->random_state = random_state;
}

static void restore(const struct moment* c) {
    memcpy(plansza, c->plansza, POLA);
    memcpy(pod, c->pod, POLA);
    memcpy(stan, c->stan, POLA);
    memcpy(zapach, c->zapach, POLA);
    memcpy(zp_begin, c->zp, zp_end - zp_begin);
    memcpy(bss_begin, c->bss, bss_end - bss_begin);
    length = c->length;
    random_state = c->random_state;
}

static byte random_byte(void) {
    random_state = random_state * 25173u + 13849u;
    return (byte)(random_state >> 8);
}

static unsigned here(void) {
    return dorva_y * KOLUMNY + dorva_x;
}

static byte znak(unsigned i) {
    return plansza[i] & 64 ? MUR_V : plansza[i] & 63;
}

static byte is_creature(byte z) {
    return (z >= DUCH && z < WYBUCH) || (z >= TROPICIEL && z < MIOTNIK);
}

/* A direction in which she can't go, so that a tap of the stick ends the greeting and does nothing else. */
static byte into_wall(void) {
    byte k;
    for (k = 0; k < 3 && prices[znak(here() + neighbour[k])] != NEVER; ++k) {
    }
    return k;
}

/* One step: taps the stick or the trigger, or waits. The game waits for the first tap. */
static void step(byte action) {
    byte i, before;
    if (!length && action >= WAIT)
        action = into_wall();
    if (length < STEPS_MAX)
        run[length++] = letters[action];
    drazek = action < WAIT ? stick_states[action] : 15;
    spust = action != TRIGGER;
    for (i = 0; i < KROK && !wynik; ++i) {
        if (i == TAP) {
            drazek = 15;
            spust = 1;
        }
        before = energia;
        takt();
        if (energia + 4 < before)
            wounds += before - energia;
    }
}

static void raise_price(unsigned i, byte o) {
    if (i < POLA && price[i] != NEVER)
        price[i] = price[i] > 250 - o ? 250 : price[i] + o;
}

/* Sets the prices of all cells: by tile, and higher near creatures and shooters. */
static void set_prices(unsigned goal) {
    unsigned i, j;
    byte z, k;
    signed char dx, dy;
    memset(price, NEVER, POLA);
    for (i = KOLUMNY + 1; i < POLA - KOLUMNY; i += 2)
        for (k = 0; k < KOLUMNY - 2; ++k, ++i) { /* nobody enters the edge */
            z = znak(i);
            if ((z == WYJSCIE && otwarte) || (z == DRZWI && klucze))
                price[i] = 8;
            else if (prices[z] != NEVER)
                price[i] = fearless && prices[z] == MOVING ? NEVER : prices[z] + (random_byte() & 1);
        }
    if (goal < POLA && znak(goal) == MAGICZNY)
        price[goal] = 4;
    for (i = 0; i < POLA && !fearless; ++i) {
        z = znak(i);
        if (is_creature(z))
            for (dy = -3; dy <= 3; ++dy)
                for (dx = -3; dx <= 3; ++dx) {
                    k = (dx < 0 ? -dx : dx) + (dy < 0 ? -dy : dy);
                    if (k <= 3)
                        raise_price(i + dy * KOLUMNY + dx, fear[k]);
                }
        if (z == PROMIENNIK || (z >= MIOTNIK && z <= PLUJKA))
            for (k = 0; k < 4; ++k)
                for (j = i + neighbour[k]; j < POLA && price[j] != NEVER; j += neighbour[k])
                    raise_price(j, 12);
    }
}

/* How little a cell is worth going to: 0 is best, UNREACHED is nothing. */
static unsigned worth(unsigned i) {
    switch (znak(i)) {
    case WYJSCIE:
        return otwarte ? 0 : UNREACHED;
    case MASKA:
        return brak_masek ? 800 : UNREACHED;
    case KLUCZ:
    case POCHODNIA:
        return 800;
    case ELIKSIR:
        return energia < 60 && !fearless ? 680 : UNREACHED;
    default:
        return UNREACHED;
    }
}

/* Measures the distances from Dorva to all cells, by price. */
static void measure(void) {
    unsigned head = 0, tail = 0, i, j, d;
    byte k;
    memset(distance, 0xFF, sizeof(distance));
    memset(is_queued, 0, POLA);
    distance[here()] = 0;
    queue[tail++] = here();
    while (head != tail) {
        i = queue[head];
        head = (head + 1) & 1023;
        is_queued[i] = 0;
        for (k = 0; k < 4; ++k) {
            j = i + neighbour[k];
            if (price[j] == NEVER)
                continue;
            d = distance[i] + price[j];
            if (d < distance[j]) {
                distance[j] = d;
                came_by[j] = k;
                if (!is_queued[j]) {
                    is_queued[j] = 1;
                    queue[tail] = j;
                    tail = (tail + 1) & 1023;
                }
            }
        }
    }
}

/* Looks for the way to a cell, or with EVERYTHING to the best one. 1: there is a way. */
static byte find_way(unsigned goal) {
    unsigned i, d, best = UNREACHED;
    way_steps = 0;
    set_prices(goal);
    measure();
    if (goal == EVERYTHING)
        for (i = 0; i < POLA; ++i) {
            d = worth(i);
            if (d != UNREACHED && distance[i] != UNREACHED && d + distance[i] < best) {
                best = d + distance[i];
                goal = i;
            }
        }
    if (goal == EVERYTHING || distance[goal] == UNREACHED)
        return 0;
    for (i = goal; i != here(); i -= neighbour[came_by[i]])
        way[way_steps++] = came_by[i];
    return 1;
}

/* Goes some steps of the way, also through thickets. A leap ends the way. */
static void go(byte steps) {
    unsigned next_cell;
    byte t;
    for (; steps && way_steps && !wynik; --steps) {
        next_cell = here() + neighbour[way[--way_steps]];
        for (t = znak(next_cell) == ZAROSLA && !pochodnia ? 3 : 1; t && !wynik; --t)
            step(way[way_steps]);
        if (here() != next_cell && here() != next_cell - neighbour[way[way_steps]])
            way_steps = 0;
    }
}

/* Makes up ideas: first to wait, then to make one move, then to make two. */
static void think_up(void) {
    byte i, k;
    memset(count, 0, sizeof(count));
    for (i = 1; i < IDEAS; ++i) {
        if (i < WAITS) {
            move[i][0] = WAIT;
            count[i][0] = i < 4 ? i : i * 2;
            continue;
        }
        for (k = 0; k < MOVES; ++k) {
            move[i][k] = random_byte() & 3;
            count[i][k] = (random_byte() & 7) + 1;
        }
        move[i][2] = WAIT;
        if (i < 18)
            count[i][1] = 0;
    }
}

/* Carries out an idea and finds the way from there. 0: there is no way. */
static byte begin(byte idea, unsigned goal) {
    byte k, n;
    for (k = 0; k < MOVES; ++k)
        for (n = count[idea][k]; n && !wynik; --n)
            step(move[idea][k]);
    if (idea >= WAITS && !wynik)
        return find_way(goal);
    memcpy(way, way_from_here, steps_from_here);
    way_steps = steps_from_here;
    return way_steps != 0;
}

/* Tries an idea and returns its cost: wounds, death, the way that is left. Wounds count less the longer there has been
   no progress. */
static unsigned cost_of(byte idea, unsigned goal, const char* sequence, byte ahead) {
    const unsigned idle = length - last_progress;
    byte n;
    wounds = 0;
    if (!begin(idea, goal) && !sequence)
        way_steps = 100;
    else if (sequence)
        for (n = 0; n < ahead && sequence[n] && !wynik; ++n)
            step(strchr(letters, sequence[n]) - letters);
    else
        go(ahead);
    if (wynik == ETAP_PRZESZLA)
        return 0;
    if (wynik == DORVA_GINIE)
        return DEATH;
    return way_steps + (idle < 40 ? wounds * 8 : idle < 90 ? wounds * 2 : wounds >> 2);
}

/* Returns the idea that costs least. While there is progress, the first one that doesn't hurt will do. Before a step of
   a sequence the only ideas are to wait, since its steps must begin where they are meant to. */
static byte choose(unsigned goal, const char* sequence, byte ahead) {
    const byte ideas = sequence ? WAITS : IDEAS;
    byte i, best = 0;
    unsigned cost, least = UNREACHED;
    think_up();
    if (!sequence)
        find_way(goal);
    steps_from_here = way_steps;
    memcpy(way_from_here, way, steps_from_here);
    save(&now);
    for (i = 0; i < ideas; ++i) {
        cost = cost_of(i, goal, sequence, ahead);
        if (cost < least) {
            least = cost;
            best = i;
        }
        restore(&now);
        if (!wounds && least < DEATH && (!i || length - last_progress < 40))
            break;
    }
    return best;
}

static byte anything_moves(void) {
    unsigned i;
    byte z;
    for (i = 0; i < POLA; ++i) {
        z = znak(i);
        if (z >= PROMIENNIK && z < BAGNO && z != MONETA && z != OGIEN)
            return 1;
    }
    return 0;
}

/* Whether the try still makes sense: there has been progress lately. */
static byte makes_sense(void) {
    const unsigned state = (brak_masek << 8) + (klucze << 6) + energia + (unsigned)plan;
    if (state != progress) {
        progress = state;
        last_progress = length;
    }
    return !wynik && length < STEPS_MAX && length - last_progress < PATIENCE;
}

/* Remembers this moment. After a wound it returns to the earliest one instead, to try something else, unless it has
   done so too often. */
static void reconsider(void) {
    if (wounds && earlier_count && returns_left > (wynik ? 0 : RETURNS / 2)) {
        --returns_left;
        restore(earlier);
        last_progress = length;
        random_state += returns_left * 257u;
        earlier_count = 1;
        return;
    }
    if (wounds)
        earlier_count = 0;
    else if (earlier_count && length < earlier[earlier_count - 1].length + STEPS_APART)
        return;
    if (earlier_count == EARLIER)
        memmove(earlier, earlier + 1, --earlier_count * sizeof(struct moment));
    save(&earlier[earlier_count++]);
}

/* Goes to a cell, or with EVERYTHING takes all it can get. */
static void reach(unsigned goal, byte ahead) {
    unsigned from;
    byte found, idea;
    earlier_count = 0;
    for (wounds = 0;; wounds = 0) {
        if (!fearless && wynik != ETAP_PRZESZLA)
            reconsider();
        if (here() == goal || !makes_sense())
            return;
        if (fearless || !anything_moves())
            found = find_way(goal);
        else {
            idea = choose(goal, 0, ahead);
            wounds = 0;
            found = begin(idea, goal);
        }
        if (!found) {
            if (goal == EVERYTHING && (*plan || !anything_moves()))
                return;
            step(WAIT);
            continue;
        }
        from = here();
        go(fearless ? 1 : ahead / 2);
        if (goal != EVERYTHING && !way_steps && here() != from) /* she is there, or has leapt from there */
            return;
    }
}

static void carry_out(const char* sequence, byte ahead) {
    for (; *sequence && makes_sense(); ++sequence) {
        if (!fearless && strchr(letters, *sequence) < letters + WAIT && anything_moves())
            begin(choose(0, sequence, ahead), 0);
        step(strchr(letters, *sequence) - letters);
    }
}

static unsigned number(void) {
    unsigned n = 0;
    for (; isdigit(*plan); ++plan)
        n = n * 10 + (*plan - '0');
    return n;
}

/* Follows the plan from its start. 1: she has gone through the exit. */
static byte attempt(byte try_number) {
    static char sequence[100];
    const byte ahead = 8 + try_number * 3;
    unsigned n;
    char letter;
    byte k;
    memcpy(plansza, record + ETAP_PLANSZA, POLA);
    cel_masek = record[ETAP_CEL];
    length = last_progress = 0;
    returns_left = RETURNS;
    random_state = 1 + try_number * 7919u;
    spust = 1;
    nowy_etap();
    if (!start())
        return 0;
    for (n = 0; n < try_number * 5; ++n)
        step(WAIT);
    plan = text;
    while (makes_sense()) {
        for (k = 0;;) { /* successive steps make one sequence */
            while (*plan == ' ')
                ++plan;
            letter = *plan;
            if (!letter || !strchr(letters, letter))
                break;
            ++plan;
            for (n = number(); n && k < 99; --n)
                sequence[k++] = letter;
        }
        sequence[k] = 0;
        carry_out(sequence, ahead);
        if (isdigit(letter)) {
            n = number();
            ++plan;
            reach(n + number() * KOLUMNY, ahead);
        } else if (letter == '*') {
            ++plan;
            reach(EVERYTHING, ahead);
        } else
            break;
    }
    return wynik == ETAP_PRZESZLA;
}

static void print_run(void) {
    unsigned i, j;
    byte column = 0;
    printf("%s\n", text);
    for (i = 0; i < length; i = j) {
        for (j = i; j < length && run[j] == run[i]; ++j) {
        }
        printf("%c%u%c", run[i], j - i, ++column % 24 && j < length ? ' ' : '\n');
    }
}

static byte search(void) {
    byte i;
    for (i = 0; i < TRIES; ++i) {
        nowa_gra();
        if (attempt(i)) {
            print_run();
            return 0;
        }
        fprintf(stderr, "try %u: result %u after %u steps at %u,%u, masks %u, energy %u, plan %s\n", i, wynik, length,
                dorva_x, dorva_y, brak_masek, energia, plan);
    }
    return 1;
}

static byte be_fearless(void) {
    byte lost;
    fearless = 1;
    nowa_gra();
    for (lost = 0; lost < 3; ++lost)
        if (attempt(lost))
            break;
    printf("%u %s %u\n", lost, lost < 3 ? "yes" : "no", energia);
    return 0;
}

static byte play(const char* p) {
    unsigned n;
    nowa_gra();
    nowy_etap();
    memcpy(plansza, record + ETAP_PLANSZA, POLA);
    cel_masek = record[ETAP_CEL];
    spust = 1;
    start();
    while (*p && !wynik) {
        const char* letter = strchr(letters, *p++);
        if (!letter || !letter[0])
            continue;
        for (n = 0; isdigit(*p); ++p)
            n = n * 10 + (*p - '0');
        for (; n && !wynik; --n)
            step(letter - letters);
    }
    printf("result %u energy %u masks %u at %u,%u\n", wynik, energia, brak_masek, dorva_x, dorva_y);
    return wynik != ETAP_PRZESZLA;
}

static int read_file(const char* name, void* to, unsigned size) {
    const int file = open(name, O_RDONLY);
    const int bytes = file < 0 ? -1 : read(file, to, size);
    if (file >= 0)
        close(file);
    return bytes;
}

int main(int argc, char* argv[]) {
    char* recording;
    if (argc != 4 || read_file(argv[2], record, ETAP_BAJTY) != ETAP_BAJTY ||
        read_file(argv[3], text, sizeof(text) - 1) <= 0) {
        printf("usage: gracz play|search|fearless STAGE RUN\n");
        return 2;
    }
    recording = strchr(text, '\n');
    if (recording)
        *recording++ = 0;
    else
        recording = text + strlen(text);
    switch (argv[1][0]) {
    case 'p':
        return play(recording);
    case 's':
        return search();
    default:
        return be_fearless();
    }
}
