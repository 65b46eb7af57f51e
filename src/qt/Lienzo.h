// SPDX-License-Identifier: GPL-3.0-or-later
// Windows within the window that fills the screen. Where the window system leaves to its desktop
// what stands where, a message could come up anywhere, beneath the table too; drawn by the table's
// own window it stands in its place and above. What the window system does for a window of its own
// is done here: what lies below gets no mouse, and the keyboard comes back to it afterwards.
#pragma once

#include <QPointer>
#include <QWidget>

namespace tessario {

// The sheet between a modal window and all below it: it cannot be seen, and takes the mouse.
class Velo : public QWidget {
public:
    explicit Velo(QWidget& lienzo);
    // Goes when no event of its own runs any more; the keyboard returns to where it was.
    void Retira();
    // Where the keyboard returns to.
    void DejaFocoEn(QWidget* quien) { antes_ = quien; }
    // As large as the window that it lies in, which may have changed.
    void Ajusta();

protected:
    bool event(QEvent* e) override;

private:
    QPointer<QWidget> antes_;
};

}  // namespace tessario
