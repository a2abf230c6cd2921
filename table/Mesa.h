// The window `mesa`: the table as one persistent picture, shown scaled to the window with its
// proportions kept, and the controls drawn over it. The widget is thin: it paints the pictures
// and hands the mouse and the keys, mapped back to table pixels, to the table's handlers.
#pragma once

#include <QCursor>
#include <QWidget>

class VentanaMesa : public QWidget {
  public:
    VentanaMesa();
    // Window point to table point, and the inverse, for the current size.
    QPointF ALaMesa(const QPointF& punto) const;
    QRectF AreaMesa() const;

  protected:
    void paintEvent(QPaintEvent*) override;
    void mousePressEvent(QMouseEvent*) override;
    void mouseMoveEvent(QMouseEvent*) override;
    void mouseReleaseEvent(QMouseEvent*) override;
    void keyPressEvent(QKeyEvent*) override;
    void closeEvent(QCloseEvent*) override;
    bool event(QEvent*) override;
};

// Creates the window (it stays hidden until MuestraMesa).
void CargaMesa();
void MuestraMesa();
// The splash gives way to the table, the first time only.
void AbreMesa();
VentanaMesa* Mesa();
// Sets the pointer shape: below 20 a standard pointer (12 the "no drop"), above 20 one of the
// program's own.
void PonCursor(int forma);
// The pointer of a shape, as PonCursor gives it; the settings windows use the same ones.
QCursor CursorDeForma(int forma);
