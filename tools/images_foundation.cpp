#include "themeimages.h"

namespace themeimages {

void addFoundationImages(ImageTable& m)
{
    // Long-screen key backgrounds, one per area module.
    auto keyBg = [](QColor c) {
        return Image{QSize(240, 80), [c](QPainter& p, QSizeF s) {
                         background(p, s, c.lighter(130), c.darker(160));
                         p.setPen(stroke(QColor(255, 255, 255, 60), 2));
                         p.drawRoundedRect(QRectF(1, 1, s.width() - 2, s.height() - 2), 8, 8);
                     }};
    };
    m["screen_bg.png"] = keyBg(QColor(40, 70, 120));
    m["layer_bg.png"] = keyBg(QColor(90, 60, 130));
    m["input_bg.png"] = keyBg(QColor(30, 110, 90));
    m["preset_bg.png"] = keyBg(QColor(130, 90, 30));
    m["companion_bg.png"] = keyBg(QColor(70, 70, 80));
    m["headtransparentbkg.png"] = {QSize(240, 24), [](QPainter& p, QSizeF s) {
                                       background(p, s, QColor(0, 0, 0, 140), QColor(0, 0, 0, 0));
                                   }};
    auto badge = [](QColor c, QString text) {
        return Image{QSize(48, 24), [c, text](QPainter& p, QSizeF s) {
                         p.setBrush(c);
                         p.setPen(Qt::NoPen);
                         p.drawRoundedRect(QRectF(QPointF(0, 0), s), 6, 6);
                         QFont f;
                         f.setPixelSize(13);
                         f.setBold(true);
                         p.setFont(f);
                         p.setPen(Qt::white);
                         p.drawText(QRectF(QPointF(0, 0), s), Qt::AlignCenter, text);
                     }};
    };
    m["backupandglobal.png"] = badge(QColor(120, 80, 200), QStringLiteral("B+G"));
    m["layerStateImage.png"] = badge(QColor(60, 120, 200), QStringLiteral("LYR"));
    m["global.png"] = badge(QColor(40, 150, 120), QStringLiteral("GLB"));
    m["backup.png"] = badge(QColor(200, 120, 40), QStringLiteral("BKP"));

    // Row icons used by hosts (and the gallery) through the left/right icon buttons.
    m["icon_network.png"] = {QSize(48, 48), [](QPainter& p, QSizeF) {
                                 p.setPen(stroke(kInk, 3));
                                 p.drawEllipse(QRectF(8, 8, 32, 32));
                                 p.drawEllipse(QRectF(17, 8, 14, 32));
                                 p.drawLine(QPointF(8, 24), QPointF(40, 24));
                             }};
    m["icon_display.png"] = {QSize(48, 48), [](QPainter& p, QSizeF) {
                                 p.setPen(stroke(kInk, 3));
                                 p.drawRoundedRect(QRectF(6, 9, 36, 24), 3, 3);
                                 p.drawLine(QPointF(24, 33), QPointF(24, 39));
                                 p.drawLine(QPointF(15, 40), QPointF(33, 40));
                             }};
    m["icon_audio.png"] = {QSize(48, 48), [](QPainter& p, QSizeF) {
                               p.setPen(stroke(kInk, 3));
                               QPainterPath sp;
                               sp.moveTo(8, 19);
                               sp.lineTo(16, 19);
                               sp.lineTo(25, 11);
                               sp.lineTo(25, 37);
                               sp.lineTo(16, 29);
                               sp.lineTo(8, 29);
                               sp.closeSubpath();
                               p.drawPath(sp);
                               p.drawArc(QRectF(22, 14, 14, 20), -60 * 16, 120 * 16);
                               p.drawArc(QRectF(22, 8, 22, 32), -60 * 16, 120 * 16);
                           }};
    m["icon_system.png"] = {QSize(48, 48), [](QPainter& p, QSizeF) {
                                p.setPen(stroke(kInk, 3));
                                p.drawEllipse(QRectF(17, 17, 14, 14));
                                for (int i = 0; i < 8; ++i) {
                                    p.save();
                                    p.translate(24, 24);
                                    p.rotate(45 * i);
                                    p.drawLine(QPointF(0, -11), QPointF(0, -17));
                                    p.restore();
                                }
                            }};
    m["icon_arrow_right.png"] = {QSize(32, 32), [](QPainter& p, QSizeF) {
                                     p.setPen(stroke(kInk, 3));
                                     p.drawPolyline(QPolygonF({QPointF(12, 8), QPointF(20, 16), QPointF(12, 24)}));
                                 }};
    m["icon_edit.png"] = {QSize(32, 32), [](QPainter& p, QSizeF) {
                              p.setPen(stroke(kAccent, 2.5));
                              QPainterPath pen;
                              pen.moveTo(8, 24);
                              pen.lineTo(9, 19);
                              pen.lineTo(21, 7);
                              pen.lineTo(25, 11);
                              pen.lineTo(13, 23);
                              pen.closeSubpath();
                              p.drawPath(pen);
                          }};
}


} // namespace themeimages
