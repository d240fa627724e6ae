// The palette dialog beside the main window.
#pragma once

#include "shell/okno.h"

#include <QDialog>

#include <array>
#include <functional>

class QLabel;

namespace dorva {

class PaletaOkno : public QDialog {
public:
    explicit PaletaOkno(QWidget* parent);

    std::function<void(int index)> onPick;
    std::function<void()> onClose; // by whatever means

    void showOkno(const OknoPalety&);

private:
    class Komorka;
    std::array<Komorka*, 128> picPaleta_{};
    QWidget* picWybrany_;
    QLabel* lblWybrany_;
};

} // namespace dorva
