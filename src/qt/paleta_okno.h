// The palette dialog beside the main window.
#pragma once

#include "shell/okno.h"

#include <QDialog>

#include <array>
#include <functional>
#include <optional>

class QLabel;

namespace dorva {

class EtykietaObramowana;

class PaletaOkno : public QDialog {
public:
    explicit PaletaOkno(QWidget* parent);

    std::function<void(int index)> onPick;
    std::function<void()> onClose; // by whatever means

    void showOkno(const OknoPalety&);

private:
    std::array<EtykietaObramowana*, 128> picPaleta_{};
    std::array<std::optional<Rgb>, 128> shown_; // the colours of the cells
    QWidget* picWybrany_;
    QLabel* lblWybrany_;
};

} // namespace dorva
