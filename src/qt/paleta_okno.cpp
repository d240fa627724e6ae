#include "qt/paleta_okno.h"

#include "qt/czcionki.h"
#include "qt/konwersje.h"
#include "qt/kursory.h"
#include "qt/widgety.h"
#include "tiles/paleta_barw.h"

#include <QGuiApplication>
#include <QPushButton>
#include <QScreen>
#include <QWindow>

#include <cstddef>
#include <utility>

namespace dorva {
namespace {

constexpr int CELL_PITCH = 16, CELL_SIDE = 17;
constexpr QSize CLIENT{210, 337};
constexpr QRect FRA_PALETA{24, 16, 129, 257}, PIC_WYBRANY{160, 16, 41, 257}, LBL_WYBRANY{24, 280, 177, 17},
    CMZ_ZAMKNIJ{24, 304, 177, 25};

template <typename Label = Etykieta>
Label* addLabel(QWidget* parent, const QString& name, const QString& text, QRect place) {
    auto* label = new Label(text, parent);
    label->setObjectName(name);
    label->setGeometry(place);
    label->setAlignment(Qt::AlignCenter);
    label->setFont(fontStaly());
    return label;
}

// A field of one colour within a thin border.
EtykietaObramowana* addBarwa(QWidget* parent, const QString& name, QRect place) {
    auto* barwa = new EtykietaObramowana(parent);
    barwa->setObjectName(name);
    barwa->setGeometry(place);
    barwa->setAutoFillBackground(true);
    return barwa;
}

} // namespace

PaletaOkno::PaletaOkno(QWidget* parent)
    : QDialog(parent, Qt::Tool | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowCloseButtonHint) {
    setObjectName("dlgPaleta");
    setWindowTitle("Paleta Atari");
    setFixedSize(CLIENT);
    connect(this, &QDialog::finished, this, [this] { onClose(); });
    // Qt counts a tool window and its parent as active together, but only one of them has the keyboard.
    connect(qApp, &QGuiApplication::focusWindowChanged, this, [this](const QWindow* window) {
        if (window && window == windowHandle())
            onKeyboard();
    });
}

void PaletaOkno::build() {
    auto* fraPaleta = new QWidget(this);
    fraPaleta->setObjectName("fraPaleta");
    fraPaleta->setGeometry(FRA_PALETA);
    const QCursor hand = kursorPalety();
    for (int i = 0; i < PALETA_CELLS; ++i) {
        EtykietaObramowana* cell =
            addBarwa(fraPaleta, QString("picPaleta(%1)").arg(i),
                     {i % PALETA_COLUMNS * CELL_PITCH, i / PALETA_COLUMNS * CELL_PITCH, CELL_SIDE, CELL_SIDE});
        cell->setToolTip(toQString(kolorText(2 * i)));
        cell->setCursor(hand);
        cell->onClick = [this, i] { onPick(i); };
        picPaleta_[i] = cell;
    }
    const auto digit = [](int value) { return QString::number(value, 16).toUpper(); };
    for (int c = 0; c < PALETA_COLUMNS; ++c)
        addLabel(this, QString("lblPaleta(%1)").arg(c), digit(2 * c),
                 {FRA_PALETA.left() + CELL_PITCH * c, 0, CELL_SIDE, CELL_SIDE});
    for (int r = 0; r < PALETA_ROWS; ++r)
        addLabel(this, QString("lblPaleta(%1)").arg(PALETA_COLUMNS + r), digit(r),
                 {0, FRA_PALETA.top() + CELL_PITCH * r, CELL_SIDE, CELL_SIDE});

    picWybrany_ = addBarwa(this, "picWybrany", PIC_WYBRANY);
    lblWybrany_ = addLabel<EtykietaObramowana>(this, "lblWybrany", "0", LBL_WYBRANY);

    auto* cmzZamknij = new Przycisk("Zamknij", this);
    cmzZamknij->setObjectName("cmzZamknij");
    cmzZamknij->setGeometry(CMZ_ZAMKNIJ);
    connect(cmzZamknij, &QPushButton::clicked, this, &QDialog::close);
}

// Beside the window if there is room, else over it, away from the swatches.
void PaletaOkno::place() {
    constexpr int GAP = 8;
    const QWidget& window = *parentWidget();
    const QRect frame = window.frameGeometry();
    const bool room = window.screen()->availableGeometry().right() > frame.right() + width() + 2 * GAP;
    move(room ? frame.right() + GAP : frame.right() - window.width() / 4 - width(), frame.top() + GAP);
}

void PaletaOkno::showOkno(const OknoPalety& okno) {
    if (!picWybrany_ && !okno.otwarte)
        return;
    if (!picWybrany_) {
        build();
        place();
    }
    for (std::size_t i = 0; i < picPaleta_.size(); ++i)
        setColour(picPaleta_[i], QPalette::Window, toQColor(okno.picPaleta[i]));
    setColour(picWybrany_, QPalette::Window, toQColor(okno.picWybrany));
    lblWybrany_->setText(toQString(okno.lblWybrany));
    if (!okno.otwarte)
        setVisible(false);
    else if (std::exchange(otwarcia_, okno.otwarcia) != okno.otwarcia)
        bringUp();
}

// It may be open already, behind another window or minimised.
void PaletaOkno::bringUp() {
    setWindowState(windowState() & ~Qt::WindowMinimized);
    show();
    raise();
    activateWindow();
}

} // namespace dorva
