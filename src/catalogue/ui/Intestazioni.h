#pragma once

#include <QHeaderView>

namespace sagomi {

/// Headings of a table whose columns are nothing to select: none of them ever stands in bold type, so their
/// room is that of the plain one. The toolkit's own headings read the bold face of the font to measure
/// themselves.
class Intestazioni : public QHeaderView {
    Q_OBJECT
public:
    explicit Intestazioni(QWidget* parent = nullptr);

protected:
    [[nodiscard]] QSize sectionSizeFromContents(int colonna) const override;
};

} // namespace sagomi
