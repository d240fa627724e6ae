// Pictures of few colours, as Windows bitmaps with four bits per pixel.
#pragma once

#include "stage/tekst.h"
#include "tiles/obraz.h"

#include <utility>
#include <vector>

namespace dorva {

struct ObrazBarwny {
    int width = 0, height = 0;
    std::vector<Rgb> barwy;    // at most 16
    std::vector<Bajt> piksele; // indices into `barwy`, row by row from the top

    ObrazBarwny(int w, int h, std::vector<Rgb> colours)
        : width(w), height(h), barwy(std::move(colours)), piksele(w * h) {}

    void fill(int x, int y, int w, int h, Bajt barwa);
};

Bajty BuildBmp(const ObrazBarwny&);

} // namespace dorva
