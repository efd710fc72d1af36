#include "screens/PannelloAzioni.h"

#include "ui_PannelloAzioni.h"

namespace sagomi {

PannelloAzioni::PannelloAzioni(QWidget* parent) : QGroupBox(parent), ui_(new Ui::PannelloAzioni) {
    ui_->setupUi(this);
    TxtNsd = ui_->TxtNsd;
    TxtMysd = ui_->TxtMysd;
    TxtMzsd = ui_->TxtMzsd;
}

PannelloAzioni::~PannelloAzioni() = default;

} // namespace sagomi
