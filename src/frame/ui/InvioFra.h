#pragma once

#include <QLineEdit>
#include <QList>

#include <functional>

#include "frame/ui/Campi.h"

namespace sagomi {

/// What Enter does on a screen with several entries: it goes to the next of these boxes that is shown, past
/// the buttons between them; from the last one on it follows the tab order.
inline std::function<bool(QLineEdit*)> InvioFra(QList<QLineEdit*> caselle) {
    return [boxes = std::move(caselle)](QLineEdit* da) {
        const auto at = boxes.indexOf(da);
        if (at < 0)
            return false;
        for (auto i = at + 1; i < boxes.size(); ++i)
            if (boxes[i]->isVisibleTo(boxes[i]->window())) {
                FuocoSu(boxes[i]);
                return true;
            }
        return false;
    };
}

} // namespace sagomi
