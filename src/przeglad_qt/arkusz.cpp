#include "przeglad_qt/arkusz.h"

#include <QDrag>
#include <QDropEvent>
#include <QMimeData>
#include <QPainter>
#include <QStyledItemDelegate>

namespace dorva {
namespace {

constexpr int SPACING = 6;

class Delegat : public QStyledItemDelegate {
public:
    Delegat(const KartyModel& model, Rysownik& rysownik, QObject* parent)
        : QStyledItemDelegate(parent), model_(model), rysownik_(rysownik) {}

    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem&, const QModelIndex&) const override {
        return {KARTA_WIDTH, KARTA_HEIGHT};
    }

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override {
        const bool selected = option.state & QStyle::State_Selected;
        const QRect rect = option.rect;
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        painter->setFont(option.font);
        painter->setBrush(option.palette.base());
        painter->setPen(QPen(selected ? option.palette.highlight() : option.palette.mid(), selected ? 3 : 1));
        painter->drawRoundedRect(QRectF(rect).adjusted(1.5, 1.5, -1.5, -1.5), 6, 6);
        rysownik_.karta(*painter, rect, model_.gra(), index.row(), option.palette);
        if (!model_.gra().karty[index.row()].image.empty()) // else the reason stands in the place of the board
            drawOstrzezenia(*painter,
                            rect.adjusted(KARTA_MARGIN, OBRAZ_KARTY_HEIGHT - KARTA_MARGIN / 2, -KARTA_MARGIN, 0),
                            model_.ostrzezenia(index.row()), option.palette);
        painter->restore();
    }

private:
    const KartyModel& model_;
    Rysownik& rysownik_;
};

} // namespace

Arkusz::Arkusz(KartyModel& model, Rysownik& rysownik, QWidget* parent) : QListView(parent) {
    setModel(&model);
    setItemDelegate(new Delegat(model, rysownik, this));
    setFlow(LeftToRight);
    setWrapping(true);
    setResizeMode(Adjust);
    setUniformItemSizes(true);
    setSpacing(SPACING);
    setVerticalScrollMode(ScrollPerPixel);
    setDragDropMode(InternalMove);
    setDropIndicatorShown(false); // Qt's own leaves two pixels for a drop between cards
    viewport()->setBackgroundRole(QPalette::Window);
}

void Arkusz::select(int place) {
    setCurrentIndex(model()->index(place, 0));
    scrollTo(currentIndex());
}

int Arkusz::columns() const {
    int count = 1;
    while (count < ETAPY_COUNT && visualRect(model()->index(count, 0)).top() == visualRect(model()->index(0, 0)).top())
        ++count;
    return count;
}

std::optional<Arkusz::Cel> Arkusz::celAt(QPoint point) const {
    for (int place = 0; place < ETAPY_COUNT; ++place) {
        const QRect card = visualRect(model()->index(place, 0)).adjusted(-SPACING, -SPACING, SPACING, SPACING);
        if (!card.contains(point))
            continue;
        const int x = point.x() - card.left(), quarter = card.width() / 4;
        return Cel{place, x < quarter ? Cel::Left : x < card.width() - quarter ? Cel::Onto : Cel::Right};
    }
    return std::nullopt;
}

int Arkusz::newPlace(const Cel& cel) const {
    if (cel.side == Cel::Onto)
        return cel.place;
    const int gap = cel.side == Cel::Left ? cel.place : cel.place + 1;
    return gap > place() ? gap - 1 : gap;
}

void Arkusz::showCel(const std::optional<Cel>& cel) {
    cel_ = cel && newPlace(*cel) != place() ? cel : std::nullopt;
    viewport()->update();
    if (onHint)
        onHint(!cel_ ? QString()
                     : QString(cel_->side == Cel::Onto ? "Etap %1 zamieni się miejscami z etapem %2"
                                                       : "Etap %1 przejdzie na miejsce %2, inne się przesuną")
                           .arg(place() + 1)
                           .arg(newPlace(*cel_) + 1));
}

// With a small picture below the pointer: Qt's own would cover the card on which it is dropped.
void Arkusz::startDrag(Qt::DropActions actions) {
    auto* drag = new QDrag(this);
    drag->setMimeData(model()->mimeData({currentIndex()}));
    QPixmap card = viewport()->grab(visualRect(currentIndex()));
    card.setDevicePixelRatio(2 * card.devicePixelRatio());
    drag->setPixmap(card);
    drag->exec(actions);
}

void Arkusz::dragEnterEvent(QDragEnterEvent* event) {
    if (event->source() != this)
        return event->ignore(); // a file is for the window
    QListView::dragEnterEvent(event);
}

void Arkusz::dragMoveEvent(QDragMoveEvent* event) {
    QListView::dragMoveEvent(event); // scrolls at the rim
    showCel(celAt(event->position().toPoint()));
    event->setAccepted(cel_.has_value());
}

void Arkusz::dragLeaveEvent(QDragLeaveEvent* event) {
    QListView::dragLeaveEvent(event);
    showCel(std::nullopt);
}

void Arkusz::dropEvent(QDropEvent* event) {
    showCel(celAt(event->position().toPoint()));
    const auto cel = cel_;
    stopAutoScroll();
    showCel(std::nullopt);
    if (!cel)
        return;
    (cel->side == Cel::Onto ? onExchange : onMove)(place(), newPlace(*cel));
}

void Arkusz::paintEvent(QPaintEvent* event) {
    QListView::paintEvent(event);
    if (!cel_)
        return;
    constexpr int THICKNESS = 4;
    const QRect card = visualRect(model()->index(cel_->place, 0));
    QPainter painter(viewport());
    painter.setPen(QPen(palette().highlight(), THICKNESS));
    if (cel_->side == Cel::Onto)
        painter.drawRoundedRect(card, 6, 6);
    else {
        const int x = cel_->side == Cel::Left ? card.left() - SPACING : card.right() + SPACING;
        painter.drawLine(x, card.top(), x, card.bottom());
    }
}

} // namespace dorva
