#pragma once

#include <QPointer>
#include <QQuickItem>

namespace kel {

/// Something that lies over a screen and keeps it from being used meanwhile: a focus scope that takes the
/// keys when it is made, lets none of them through, and gives them back to whatever had them before when it
/// is hidden or taken away. What it covers with is its content's business.
class KelCover : public QQuickItem {
    Q_OBJECT
    QML_ELEMENT

public:
    explicit KelCover(QQuickItem* parent = nullptr);
    ~KelCover() override;

protected:
    void componentComplete() override;
    void itemChange(ItemChange change, const ItemChangeData& data) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void giveBack();

    QPointer<QQuickItem> previous_;
};

} // namespace kel
