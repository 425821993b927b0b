// Draws the Designer widget box icons, one per group, into designer/icons/.
// Usage: designericons [output-dir]
#include <QDir>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QPainterPath>
#include <cstdio>
#include <functional>
#include <map>

namespace {

QColor const kPanel(38, 41, 48);
QColor const kInk(235, 235, 235);
QColor const kAccent(255, 138, 0);

QPen stroke(QColor c, qreal w) { return QPen(c, w, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin); }

using Draw = std::function<void(QPainter&)>;

// Icons are drawn on a 32 x 32 canvas: a dark panel with the group's symbol.
std::map<QString, Draw> const& icons()
{
    static std::map<QString, Draw> const table = {
        {QStringLiteral("rows"),
         [](QPainter& p) {
             for (int i = 0; i < 3; ++i) {
                 p.setPen(stroke(i == 1 ? kAccent : kInk, 2));
                 p.drawLine(QPointF(7, 9 + i * 7), QPointF(16, 9 + i * 7));
                 p.drawLine(QPointF(20, 9 + i * 7), QPointF(25, 9 + i * 7));
             }
         }},
        {QStringLiteral("lists"),
         [](QPainter& p) {
             p.setPen(stroke(kInk, 1.6));
             p.drawRoundedRect(QRectF(5, 6, 22, 7), 2, 2);
             p.setPen(stroke(kAccent, 1.6));
             p.drawPolyline(QPolygonF({QPointF(20, 8.5), QPointF(22.5, 11), QPointF(25, 8.5)}));
             p.setPen(stroke(kInk, 1.6));
             p.drawLine(QPointF(8, 18), QPointF(22, 18));
             p.drawLine(QPointF(8, 23), QPointF(19, 23));
         }},
        {QStringLiteral("editors"),
         [](QPainter& p) {
             p.setPen(stroke(kInk, 1.6));
             p.drawRoundedRect(QRectF(5, 10, 22, 12), 2, 2);
             QFont font;
             font.setPixelSize(9);
             font.setBold(true);
             p.setFont(font);
             p.drawText(QRectF(6, 10, 14, 12), Qt::AlignCenter, QStringLiteral("12"));
             p.setPen(stroke(kAccent, 1.6));
             p.drawPolyline(QPolygonF({QPointF(21, 14.5), QPointF(23, 12.5), QPointF(25, 14.5)}));
             p.drawPolyline(QPolygonF({QPointF(21, 17.5), QPointF(23, 19.5), QPointF(25, 17.5)}));
         }},
        {QStringLiteral("controls"),
         [](QPainter& p) {
             p.setPen(Qt::NoPen);
             p.setBrush(kAccent);
             p.drawRoundedRect(QRectF(5, 9, 22, 14), 7, 7);
             p.setBrush(kInk);
             p.drawEllipse(QPointF(20, 16), 5, 5);
         }},
        {QStringLiteral("instruments"),
         [](QPainter& p) {
             p.setPen(stroke(kInk, 2));
             p.drawArc(QRectF(5, 7, 22, 22), 200 * 16, -220 * 16);
             p.setPen(stroke(kAccent, 2));
             p.drawLine(QPointF(16, 18), QPointF(22, 11));
             p.setBrush(kAccent);
             p.drawEllipse(QPointF(16, 18), 1.5, 1.5);
         }},
        {QStringLiteral("device_pages"),
         [](QPainter& p) {
             p.setPen(stroke(kInk, 1.6));
             p.drawRoundedRect(QRectF(4, 7, 24, 16), 2, 2);
             p.drawLine(QPointF(12, 26), QPointF(20, 26));
             p.setPen(stroke(kAccent, 1.6));
             p.drawLine(QPointF(8, 12), QPointF(20, 12));
             p.setPen(stroke(kInk, 1.2));
             p.drawLine(QPointF(8, 16), QPointF(24, 16));
             p.drawLine(QPointF(8, 19), QPointF(18, 19));
         }},
    };
    return table;
}

} // namespace

int main(int argc, char** argv)
{
    QGuiApplication app(argc, argv);
    QDir out(argc > 1 ? QString::fromLocal8Bit(argv[1]) : QStringLiteral("designer/icons"));
    if (!out.exists() && !out.mkpath(QStringLiteral("."))) {
        std::fprintf(stderr, "cannot create %s\n", qPrintable(out.path()));
        return 1;
    }
    for (auto const& [name, draw] : icons()) {
        QImage image(32, 32, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        QPainter p(&image);
        p.setRenderHint(QPainter::Antialiasing);
        p.setPen(Qt::NoPen);
        p.setBrush(kPanel);
        p.drawRoundedRect(QRectF(1, 1, 30, 30), 5, 5);
        draw(p);
        p.end();
        QString const file = out.filePath(name + QStringLiteral(".png"));
        if (!image.save(file)) {
            std::fprintf(stderr, "cannot write %s\n", qPrintable(file));
            return 1;
        }
    }
    return 0;
}
