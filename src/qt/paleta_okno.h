// The palette dialog beside the main window. Its widgets are made when it is first opened.
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
    std::function<void()> onClose;    // by whatever means
    std::function<void()> onKeyboard; // it takes the keyboard

    void showOkno(const OknoPalety&);

private:
    void build(); // when first opened
    void place();
    void bringUp();

    unsigned otwarcia_ = 0; // as often as it was brought up
    std::array<EtykietaObramowana*, PALETA_CELLS> picPaleta_{};
    QWidget* picWybrany_ = nullptr;
    QLabel* lblWybrany_ = nullptr;
};

} // namespace dorva
