#include "stanowisko.h"

#include "qt/rozmowy.h"
#include "stage/archiwum.h"

#include <QFile>
#include <QFileDialog>
#include <QStandardPaths>

namespace dorva::test {
namespace {

class Rozmowy : public Stanowisko {
protected:
    // Answers the next file dialog with a name, or cancels it where the name is empty.
    void whenAskedChoose(const fs::path& name) {
        whenAsked<QFileDialog>([this, name](QFileDialog* dialog) {
            filters = dialog->nameFilters();
            proposed = dialog->findChild<QLineEdit*>("fileNameEdit")->text();
            folder = dialog->directory().absolutePath();
            if (name.empty())
                return dialog->reject();
            dialog->findChild<QLineEdit*>("fileNameEdit")->setText(QString::fromStdString(name.string()));
            static_cast<QDialog*>(dialog)->accept();
        });
    }
    QStringList filters;
    QString proposed, folder;
};

TEST_F(Rozmowy, AStageGoesOutAndComesBack) {
    open();
    const fs::path copy = root / QString::fromUtf8("mój etap").toStdString();
    whenAskedChoose(copy);
    QTimer::singleShot(0, [this] { whenAskedPress("OK"); });
    click("cmdSave");
    EXPECT_EQ(proposed, "DETAP.1");
    EXPECT_EQ(folder, QString::fromStdString(fs::canonical(root).string()));
    EXPECT_EQ(filters, QStringList({"Etap gry (DETAP.*)", "Wszystkie pliki (*.*) (*)"}));
    EXPECT_EQ(said, QStringList("Informacja|Dane etapu zostały pomyślnie zapisane"));
    EXPECT_EQ(readFile(copy), sampleEtap(1));

    said.clear();
    writeFile(copy, Bajty(930, 1));
    whenAskedChoose(copy);
    QTimer::singleShot(0, [this] { whenAskedPress("OK"); });
    click("cmdLoad");
    EXPECT_EQ(said, QStringList("Uwaga!|Niewłaściwy format pliku!"));
    writeFile(copy, sampleEtap(9));
    whenAskedChoose(copy);
    click("cmdLoad");
    EXPECT_EQ(find<QLabel>("lblInfo(3)")->text(), "9");
    EXPECT_EQ(e.NumerEtapu, 1);
    whenAskedChoose({});
    click("cmdLoadArch");
    EXPECT_EQ(find<QLabel>("lblInfo(3)")->text(), "9");
    EXPECT_FALSE(
        QFile::exists(QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + "/QtProject.conf"));
}

TEST_F(Rozmowy, AnExistingFileIsReplacedOnlyWhenAsked) {
    open();
    const fs::path archive = root / "gra.dpa";
    writeFile(archive, {1, 2, 3});
    whenAskedChoose(archive);
    QTimer::singleShot(0, [this] { whenAskedPress("Anuluj"); });
    click("cmdSaveArch");
    EXPECT_EQ(said, QStringList("Ostrzeżenie!|Plik już istnieje!\nZastąpić?"));
    EXPECT_EQ(readFile(archive), (Bajty{1, 2, 3}));
}

TEST_F(Rozmowy, ClearingAsksAndStays) {
    open();
    whenAskedPress("Nie");
    click("cmdCzysc");
    EXPECT_EQ(cellOf(45), znak(45));
    whenAskedPress("Tak");
    QTest::keyClick(find("cmdCzysc"), Qt::Key_Return);
    EXPECT_EQ(cellOf(45), ZIEMIA);
    EXPECT_EQ(find<QLineEdit>("txtNazwa")->text(), QString(32, ' '));
}

} // namespace
} // namespace dorva::test
