// The whole window against what a user has to find, where and under which words.
#include "stanowisko.h"

#include "qt/budowa_okna.h"
#include "qt/wytwornia.h"

#include <QCryptographicHash>
#include <QRegularExpression>
#include <QScrollBar>

#include <tuple>

namespace dorva::test {
namespace {

// What lies over a part of another one, and that.
const std::pair<QString, QString> NA_WIERZCHU[]{
    {"fraAutor", "fraPole"}, {"cmdCzysc", "fraPole"}, {"fraPPM", "fraObiekty"}, {"fraBufor", "fraObiekty"}};

QString captionOf(const QWidget* widget) {
    for (const char* property : {"title", "text"})
        if (const QVariant value = widget->property(property); value.isValid())
            return value.toString();
    return {};
}

class Katalog : public Stanowisko {
protected:
    void SetUp() override {
        Stanowisko::SetUp();
        okno->showRecord();
        okno->show();
        for (auto* widget : okno->findChildren<QWidget*>(QRegularExpression("^(fra|frm|cmd|chk|opt|txt|lbl|img|hsc)")))
            if (widget->window() == okno.get())
                controls.append(widget);
    }
    QList<QWidget*> controls;
};

// Names, places, words and states of all controls, by their sum; what it is the sum of is told where it differs.
TEST_F(Katalog, EveryControlStandsAtItsPlaceWithItsWords) {
    QStringList rows;
    for (const QWidget* control : controls) {
        const QRect r = control->geometry();
        rows += QString("%1 in %2 at %3,%4 of %5x%6%7%8: %9 / ")
                    .arg(control->objectName(), control->parentWidget()->objectName())
                    .arg(r.x())
                    .arg(r.y())
                    .arg(r.width())
                    .arg(r.height())
                    .arg(control->isEnabled() ? "" : ", disabled", control->isVisible() ? "" : ", hidden",
                         captionOf(control)) +
                control->toolTip();
    }
    rows.sort();
    const QByteArray list = rows.join("\n").toUtf8();
    EXPECT_EQ(QCryptographicHash::hash(list, QCryptographicHash::Md5).toHex().toStdString(),
              "801fcf6c7dbbd876aa1faea0fbf25e27")
        << list.toStdString();

    EXPECT_EQ(okno->minimumSize(), QSize(897, 617));
    EXPECT_EQ(okno->maximumSize(), QSize(897, 617));
    for (const char* selected : {"optEtapNR(0)", "optObiektyNR(0)", "optPPM(0)", "optNN(0)"})
        EXPECT_TRUE(find<QPushButton>(selected)->isChecked()) << selected;
    const auto* bar = find<QScrollBar>("hscMonet");
    EXPECT_EQ(std::tuple(bar->minimum(), bar->maximum(), bar->value(), bar->hasTracking()),
              std::tuple(1, 99, 1, false));
}

TEST_F(Katalog, ControlsLieInTheirFramesAndSideBySide) {
    const auto lieApart = [](const QWidget* a, const QWidget* b) {
        const QRect both = a->geometry() & b->geometry();
        return a->parent() != b->parent() || std::min(both.width(), both.height()) <= 1; // a common border
    };
    for (qsizetype i = 0; i < controls.size(); ++i) {
        const QWidget* control = controls[i];
        const QString name = control->objectName();
        if (!control->isVisible())
            continue;
        EXPECT_TRUE(name == "cmdBlokuj" || control->parentWidget()->rect().contains(control->geometry()))
            << name.toStdString();
        for (const QWidget* later : controls.mid(i + 1)) {
            const std::pair above(later->objectName(), name);
            EXPECT_TRUE(!later->isVisible() || lieApart(control, later) ||
                        std::ranges::find(NA_WIERZCHU, above) != std::end(NA_WIERZCHU))
                << above.first.toStdString() << " over " << name.toStdString();
        }
    }
    for (const char* name : {"txtNazwa", "txtAutor", "txtAutorGry(0)"}) { // each shows its full width
        const auto* box = find<QLineEdit>(name);
        EXPECT_LE(QFontMetrics(box->font()).horizontalAdvance(QString(box->maxLength(), 'W')), box->width() - 6);
    }
}

TEST_F(Katalog, TabVisitsTheControlsInOrder) {
    open();
    QStringList visited;
    for (int i = 0; i < 20; ++i) {
        visited += QApplication::focusWidget()->objectName();
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    }
    const QStringList wanted{"optEtapNR(0)",   "chkOstatni",     "optObiektyNR(1)",   "txtNazwa",  "txtAutor",
                             "txtAutorGry(0)", "txtAutorGry(1)", "txtAutorGry(2)",    "cmdLoad",   "cmdLoadArch",
                             "cmdTest",        "cmdSave",        "cmdSaveArch",       "cmdCreate", "hscMonet",
                             "cmdCzysc",       "cmdResetKolory", "chkZachowajKolory", "optPPM(0)", "optEtapNR(0)"};
    EXPECT_EQ(visited.join(" ").toStdString(), wanted.join(" ").toStdString()); // stage 1 of the desk lies in world 1
}

// Container, binding, tab stop and kind alike: what is not in the catalogue is told by its name.
TEST_F(Katalog, AMisspeltNameEndsTheProgram) {
    QWidget window;
    const KontrolkiOkna kontrolki(katalogOkna(), &window);
    const auto end = ::testing::ExitedWithCode(1);
    EXPECT_EXIT(KontrolkiOkna({{wytwornia::ramka, "fraA", -1, "fraPloe", 0, 0, 0, 0, "", ""}}, &window), end,
                "fraPloe");
    EXPECT_EXIT((void)kontrolki.get<QPushButton>("optPPM", 2), end, "optPPM.2");
    EXPECT_EXIT((void)kontrolki.get<QLineEdit>("cmdLoad"), end, "cmdLoad");
    EXPECT_EXIT(kontrolki.setTabOrder({"cmdLoad", "txtNzawa"}), end, "txtNzawa");
}

} // namespace
} // namespace dorva::test
