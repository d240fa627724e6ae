// The window of the palette dialog. Its widgets are made when it is first opened.
#pragma once

#include "shell/okno.h"

#include <QDialog>

#include <array>
#include <functional>

class QLabel;

namespace dorva {

class EtykietaObramowana;

class PaletaOkno : public QDialog {
public:
    explicit PaletaOkno(QWidget* parent);

    std::function<void(int index)> onPick;
    std::function<void()> onClose;    // it was closed, in whatever way
    std::function<void()> onKeyboard; // it gets the keyboard

    void showOkno(const OknoPalety&);

private:
    void build();
    void place();
    void bringUp();

    unsigned otwarcia_ = 0; // the requests to open it that were followed
    std::array<EtykietaObramowana*, PALETA_CELLS> picPaleta_{};
    QWidget* picWybrany_ = nullptr;
    QLabel* lblWybrany_ = nullptr;
};

} // namespace dorva
