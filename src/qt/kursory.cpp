#include "qt/kursory.h"

#include <QBitmap>
#include <QImage>

#include <array>
#include <cstddef>
#include <string_view>

namespace dorva {
namespace {

constexpr int SIDE = 32;

// '#' black, 'o' white, anything else transparent; rows and columns that are left out are transparent.
template <std::size_t Rows>
QCursor cursorOf(const std::array<std::string_view, Rows>& rows, int top, int left, QPoint hotSpot) {
    QImage image(SIDE, SIDE, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    for (std::size_t y = 0; y < Rows; ++y)
        for (std::size_t x = 0; x < rows[y].size(); ++x)
            if (rows[y][x] == '#' || rows[y][x] == 'o')
                image.setPixelColor(left + static_cast<int>(x), top + static_cast<int>(y),
                                    rows[y][x] == '#' ? Qt::black : Qt::white);
    return QCursor(QPixmap::fromImage(image), hotSpot.x(), hotSpot.y());
}

constexpr std::array<std::string_view, 17> WYBOR{
    "#         #",      //
    "##       ###",     //
    "#o#       #",      //
    "#oo#",             //
    "#ooo#",            //
    "#oooo#",           //
    "#ooooo#",          //
    "#oooooo#",         //
    "#ooooooo#",        //
    "#oooooooo#",       //
    "#ooooo#####.#.#.", //
    "#oo#oo#   .....#", //
    "#o# #oo#  #.....", //
    "##  #oo#  .....#", //
    "     #oo# #.....", //
    "     #oo# .....#", //
    "      ##  #.#.#.", //
};

constexpr std::array<std::string_view, 22> DLON{
    "      ##         ",  //
    "     #oo#        ",  //
    "     #oo#        ",  //
    "     #oo#        ",  //
    "     #oo#        ",  //
    "     #oo###      ",  //
    "     #oo#oo###   ",  //
    "     #oo#oo#oo## ",  //
    "     #oo#oo#oo#o#",  //
    " ### #oo#oo#oo#o#",  //
    "#oo##ooooooooooo#",  //
    "#ooo#ooooooooooo#",  //
    " #ooooooooooooooo#", //
    "  #oooooooooooooo#", //
    "  #oooooooooooooo#", //
    "   #ooooooooooooo#", //
    "    #oooooooooooo#", //
    "    #ooooooooooo# ", //
    "     #oooooooooo# ", //
    "     #oooooooooo# ", //
    "      #oooooooo#  ", //
    "      ##########  ", //
};

} // namespace

QCursor kursorWyboru() {
    return cursorOf(WYBOR, 8, 16, {16, 8});
}

QCursor kursorPalety() {
    return cursorOf(DLON, 0, 6, {12, 1});
}

} // namespace dorva
