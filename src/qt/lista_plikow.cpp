#include "qt/lista_plikow.h"

#include <QDateTime>
#include <QFileDialog>
#include <QFileSystemModel>
#include <QHeaderView>
#include <QLocale>
#include <QTreeView>

namespace dorva {
namespace {

enum Kolumna { NAZWA, ROZMIAR, RODZAJ, DATA, KOLUMNY_COUNT };
constexpr const char* NAGLOWKI[KOLUMNY_COUNT]{"Nazwa", "Rozmiar", "Rodzaj", "Data zmiany"};

QString sizeText(qint64 size) {
    return size < 1024 ? QString("%1 B").arg(size) : QLocale(QLocale::Polish).formattedDataSize(size, 1);
}

} // namespace

ListaPlikow::ListaPlikow(QObject* parent) : QSortFilterProxyModel(parent) {
    collator_.setNumericMode(true);
}

QVariant ListaPlikow::data(const QModelIndex& index, int role) const {
    const auto* files = qobject_cast<QFileSystemModel*>(sourceModel());
    const QModelIndex file = mapToSource(index);
    if (!files || role != Qt::DisplayRole || !file.isValid())
        return QSortFilterProxyModel::data(index, role);
    if (index.column() == ROZMIAR)
        return files->isDir(file) ? QString() : sizeText(files->size(file));
    if (index.column() == DATA)
        return files->lastModified(file).toString("dd.MM.yyyy HH:mm");
    return QSortFilterProxyModel::data(index, role);
}

QVariant ListaPlikow::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation == Qt::Horizontal && role == Qt::DisplayRole && section >= 0 && section < KOLUMNY_COUNT)
        return QString(NAGLOWKI[section]);
    return QSortFilterProxyModel::headerData(section, orientation, role);
}

bool ListaPlikow::lessThan(const QModelIndex& left, const QModelIndex& right) const {
    const auto* files = qobject_cast<QFileSystemModel*>(sourceModel());
    if (!files)
        return QSortFilterProxyModel::lessThan(left, right);
    if (files->isDir(left) != files->isDir(right))
        return files->isDir(left) == (sortOrder() == Qt::AscendingOrder);
    if (left.column() == ROZMIAR && files->size(left) != files->size(right))
        return files->size(left) < files->size(right);
    if (left.column() == DATA && files->lastModified(left) != files->lastModified(right))
        return files->lastModified(left) < files->lastModified(right);
    return collator_.compare(files->fileName(left), files->fileName(right)) < 0;
}

void showLista(QFileDialog& dialog) {
    dialog.setViewMode(QFileDialog::Detail);
    dialog.setProxyModel(new ListaPlikow(&dialog));
    const auto* tree = dialog.findChild<QTreeView*>("treeView");
    if (!tree)
        return;
    QHeaderView* header = tree->header();
    header->setSectionHidden(RODZAJ, true);
    header->setStretchLastSection(false);
    header->setSectionResizeMode(QHeaderView::ResizeToContents);
    header->setSectionResizeMode(NAZWA, QHeaderView::Stretch);
}

} // namespace dorva
