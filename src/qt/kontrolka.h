// A row of the catalogue.
#pragma once

#include <string_view>

class QWidget;

namespace dorva {

// A control. Its place is in twips, within its container; `index` is -1 outside control arrays.
struct Kontrolka {
    QWidget* (*make)(const Kontrolka&, QWidget* parent); // its kind: a function of wytwornia.h
    std::string_view name;
    int index;
    std::string_view container; // empty for the window itself
    int left, top, width, height;
    std::string_view caption;
    std::string_view tooltip;
    bool enabled = true, visible = true;
};

} // namespace dorva
