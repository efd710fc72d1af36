#include "catalogue/ui/ColonnaFerma.h"

#include <QHeaderView>
#include <QScopedValueRollback>
#include <QScrollBar>

#include <utility>

#include "catalogue/ui/Intestazioni.h"

namespace sagomi {

ColonnaFerma::ColonnaFerma(QTableView& griglia, Comando seleziona)
    : QTableView(&griglia), griglia_(griglia), seleziona_(std::move(seleziona)) {
    setObjectName(QStringLiteral("ColonnaFerma"));
    setAccessibleName(tr("Nomi dei sagomi"));
    setFrameShape(NoFrame);
    setFocusPolicy(Qt::ClickFocus);
    setFocusProxy(&griglia);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setItemDelegate(griglia.itemDelegate());
    setEditTriggers(NoEditTriggers);
    setSelectionBehavior(SelectRows);
    setSelectionMode(ExtendedSelection);
    setAlternatingRowColors(true);
    setWordWrap(false);
    setContextMenuPolicy(Qt::ActionsContextMenu);
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setMinimumSectionSize(1);
    setHorizontalHeader(new Intestazioni(this));
    hide();
}

void ColonnaFerma::Collega() {
    setModel(griglia_.model());
    setSelectionModel(griglia_.selectionModel());
    selectionModel()->disconnect(horizontalHeader());
    connect(model(), &QAbstractItemModel::modelReset, this, &ColonnaFerma::MostraPrimaColonna);
    MostraPrimaColonna();
    QScrollBar* rows = griglia_.verticalScrollBar();
    connect(rows, &QScrollBar::valueChanged, verticalScrollBar(), &QScrollBar::setValue);
    connect(verticalScrollBar(), &QScrollBar::valueChanged, this, [this, rows](int value) {
        if (!allineando_ && isVisible())
            rows->setValue(value);
    });
    connect(griglia_.horizontalScrollBar(), &QScrollBar::valueChanged, this, &ColonnaFerma::Allinea);
    connect(horizontalHeader(), &QHeaderView::sectionResized, this, [this](int column, int, int width) {
        if (!allineando_ && column == 0 && width > 0 && isVisible())
            griglia_.setColumnWidth(0, width);
    });
}

void ColonnaFerma::MostraPrimaColonna() {
    for (int column = 0; column < model()->columnCount(); ++column)
        setColumnHidden(column, column > 0);
}

void ColonnaFerma::Allinea() {
    const bool scrolled = model() != nullptr && griglia_.horizontalScrollBar()->value() > 0;
    if (!scrolled)
        hide();
    if (allineando_ || !scrolled)
        return;
    const QScopedValueRollback guard(allineando_, true);
    const QRect rows = griglia_.viewport()->geometry();
    const QHeaderView* heading = griglia_.horizontalHeader();
    verticalHeader()->setDefaultSectionSize(griglia_.verticalHeader()->defaultSectionSize());
    horizontalHeader()->setFixedHeight(heading->height());
    horizontalHeader()->setSortIndicatorShown(heading->isSortIndicatorShown());
    horizontalHeader()->setSortIndicator(heading->sortIndicatorSection(), heading->sortIndicatorOrder());
    setColumnWidth(0, griglia_.columnWidth(0));
    setGeometry(rows.left(), heading->y(), griglia_.columnWidth(0), rows.bottom() + 1 - heading->y());
    show();
    raise();
    updateGeometries();
    verticalScrollBar()->setValue(griglia_.verticalScrollBar()->value());
}

QItemSelectionModel::SelectionFlags ColonnaFerma::selectionCommand(const QModelIndex& index,
                                                                   const QEvent* event) const {
    return seleziona_(index, event);
}

} // namespace sagomi
