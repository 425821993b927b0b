#include "themeimages.h"

#include <QFont>
#include <QtMath>

namespace themeimages {

namespace {

// Transition effects: the picture on each effect button and the animated preview of
// the chooser. Source A (blue) gives way to source B (orange) as the effect does.
const QColor kSourceA(38, 92, 170);
const QColor kSourceB(255, 138, 0);

enum class Effect { Mix, Dip, WipeLeft, WipeRight, WipeUp, WipeDown, Box, Circle, Diamond, Split, Push, Clock };

struct EffectInfo
{
    char const* key;
    Effect effect;
};

constexpr EffectInfo kEffects[] = {
    {"mix", Effect::Mix},         {"dip", Effect::Dip},         {"wipe_left", Effect::WipeLeft},
    {"wipe_right", Effect::WipeRight}, {"wipe_up", Effect::WipeUp}, {"wipe_down", Effect::WipeDown},
    {"box", Effect::Box},         {"circle", Effect::Circle},   {"diamond", Effect::Diamond},
    {"split", Effect::Split},     {"push", Effect::Push},       {"clock", Effect::Clock},
};

void drawSource(QPainter& p, QRectF r, QColor fill, QChar letter, bool letters)
{
    p.fillRect(r, fill);
    if (!letters)
        return;
    QFont f;
    f.setBold(true);
    f.setPixelSize(qMax(6, int(r.height() * 0.5)));
    p.setFont(f);
    p.setPen(QColor(255, 255, 255, 220));
    p.drawText(r, Qt::AlignCenter, QString(letter));
}

// One state of the transition, t from 0 (all A) to 1 (all B).
void drawEffect(QPainter& p, QSizeF s, Effect e, qreal t, bool letters)
{
    QRectF const full(QPointF(0, 0), s);
    qreal const w = s.width();
    qreal const h = s.height();
    p.save();
    p.setPen(Qt::NoPen);
    switch (e) {
    case Effect::Mix:
        drawSource(p, full, kSourceA, QLatin1Char('A'), letters);
        p.setOpacity(t);
        drawSource(p, full, kSourceB, QLatin1Char('B'), letters);
        break;
    case Effect::Dip:
        if (t < 0.5) {
            drawSource(p, full, kSourceA, QLatin1Char('A'), letters);
            p.setOpacity(t * 2);
        } else {
            drawSource(p, full, kSourceB, QLatin1Char('B'), letters);
            p.setOpacity((1 - t) * 2);
        }
        p.fillRect(full, Qt::black);
        break;
    case Effect::Push: {
        p.save();
        p.translate(-w * t, 0);
        drawSource(p, full, kSourceA, QLatin1Char('A'), letters);
        p.translate(w, 0);
        drawSource(p, full, kSourceB, QLatin1Char('B'), letters);
        p.restore();
        break;
    }
    default: {
        drawSource(p, full, kSourceA, QLatin1Char('A'), letters);
        QPainterPath clip;
        switch (e) {
        case Effect::WipeLeft:
            clip.addRect(QRectF(w * (1 - t), 0, w * t, h));
            break;
        case Effect::WipeRight:
            clip.addRect(QRectF(0, 0, w * t, h));
            break;
        case Effect::WipeUp:
            clip.addRect(QRectF(0, h * (1 - t), w, h * t));
            break;
        case Effect::WipeDown:
            clip.addRect(QRectF(0, 0, w, h * t));
            break;
        case Effect::Box:
            clip.addRect(QRectF(w / 2 * (1 - t), h / 2 * (1 - t), w * t, h * t));
            break;
        case Effect::Circle: {
            qreal const r = t * qSqrt(w * w + h * h) / 2;
            clip.addEllipse(full.center(), r, r);
            break;
        }
        case Effect::Diamond: {
            qreal const r = t * (w + h) / 2;
            QPointF const c = full.center();
            clip.addPolygon(QPolygonF({c + QPointF(0, -r), c + QPointF(r, 0), c + QPointF(0, r), c + QPointF(-r, 0)}));
            clip.closeSubpath();
            break;
        }
        case Effect::Split:
            clip.addRect(QRectF(w / 2 * (1 - t), 0, w * t, h));
            break;
        case Effect::Clock: {
            QPointF const c = full.center();
            qreal const r = w + h;
            clip.moveTo(c);
            clip.arcTo(QRectF(c.x() - r, c.y() - r, 2 * r, 2 * r), 90, -360 * t);
            clip.closeSubpath();
            break;
        }
        default:
            break;
        }
        p.setClipPath(clip);
        drawSource(p, full, kSourceB, QLatin1Char('B'), letters);
        break;
    }
    }
    p.restore();
}

// The picture on an effect button: the transition under way, in a rounded frame.
Image picture(Effect e)
{
    qreal const t = e == Effect::Clock ? 0.3 : e == Effect::Dip ? 0.35 : 0.5;
    return Image{QSize(48, 48), [e, t](QPainter& p, QSizeF s) {
                     QRectF const box(3, 9, s.width() - 6, s.height() - 18);
                     QPainterPath round;
                     round.addRoundedRect(box, 4, 4);
                     p.save();
                     p.setClipPath(round);
                     p.translate(box.topLeft());
                     drawEffect(p, box.size(), e, t, false);
                     p.restore();
                     p.setPen(stroke(kInk, 2));
                     p.setBrush(Qt::NoBrush);
                     p.drawPath(round);
                 }};
}

// The preview: A, the transition, B, held at both ends.
Image preview(Effect e)
{
    Image img;
    img.size = QSize(128, 80);
    img.frames = 20;
    img.frameDelayMs = 80;
    img.drawFrame = [e](QPainter& p, QSizeF s, int frame) {
        qreal const t = qBound(0.0, (frame - 3) / 12.0, 1.0);
        drawEffect(p, s, e, t, true);
    };
    return img;
}

// Check box indicators: an outlined box; filled with a tick when checked, with a dash
// when partly checked.
Image checkBox(int state, bool enabled)
{
    return Image{QSize(48, 48), [state, enabled](QPainter& p, QSizeF) {
                     QColor const edge = enabled ? kInk : kDim.darker(150);
                     QColor const fill = enabled ? kAccent : kAccent.darker(250);
                     QRectF const box(5, 5, 38, 38);
                     if (state == 0) {
                         p.setPen(stroke(edge, 3.5));
                         p.setBrush(Qt::NoBrush);
                         p.drawRoundedRect(box, 7, 7);
                         return;
                     }
                     p.setPen(Qt::NoPen);
                     p.setBrush(fill);
                     p.drawRoundedRect(box, 7, 7);
                     p.setPen(stroke(enabled ? QColor(16, 19, 23) : kDim, 5));
                     if (state == 2)
                         p.drawPolyline(QPolygonF({QPointF(13, 25), QPointF(21, 33), QPointF(36, 16)}));
                     else
                         p.drawLine(QPointF(14, 24), QPointF(34, 24));
                 }};
}

} // namespace

void addChoiceImages(ImageTable& m)
{
    char const* const states[] = {"off", "partial", "on"};
    for (int state = 0; state < 3; ++state) {
        m[QStringLiteral("check_%1.png").arg(QLatin1String(states[state]))] = checkBox(state, true);
        m[QStringLiteral("check_%1_disabled.png").arg(QLatin1String(states[state]))] = checkBox(state, false);
    }
    for (EffectInfo const& info : kEffects) {
        QString const key = QString::fromLatin1(info.key);
        m[QStringLiteral("effect_%1.png").arg(key)] = picture(info.effect);
        m[QStringLiteral("effect_%1.gif").arg(key)] = preview(info.effect);
    }
}

} // namespace themeimages
