// One-line label that elides its text in a fixed width, or scrolls it as a
// seamless marquee when rolling is asked for and the text does not fit.
#pragma once

#include "lcdwidgets_global.h"

#include <QFont>
#include <QLabel>

class QTimer;

class LCDWIDGETS_EXPORT RollLabel : public QLabel
{
    Q_OBJECT
public:
    // An empty label without a fixed width (it shows texts as they are until setWidth()).
    // The marquee's timer is made when the label first rolls.
    explicit RollLabel(QWidget* parent = nullptr);
    ~RollLabel() override;

    // Stores the width and makes it the label's fixed width.
    void setWidth(int width);
    // The full text that is scrolled while rolling.
    void setItemName(QString const& name);
    // Shows `text`: unchanged when no width is set, elided at the width when it is too
    // wide and roll is false; then (re)starts or stops the marquee.
    void setTextLabel(QString const& text, bool roll);
    // Like setTextLabel, with the item name = text and the stored width the smaller of
    // two thirds of `width` and the text's own width (the fixed width is left alone).
    void setCalTextLabel(QString const& text, int width, bool roll);
    // Pixels per tick and tick interval in ms; used from the next start of the marquee.
    void setspeed(int step, int interval);
    // Shows `pixmap` instead of a text and stops the marquee.
    void setPixmapLabel(QPixmap const& pixmap);
    // Whether rolling was asked for: the `roll` of the last setTextLabel() (or
    // setCalTextLabel()) made with a width set; false at first.
    bool getLabelRoll() const;
    // Measures the item name again and starts the marquee (from offset 0, at the current
    // speed) when rolling was asked for, the text is plain and the item name is wider than
    // the stored width; otherwise stops it.
    void upateLabelRollingState();

    // Introspection for pages and tests.
    bool isRolling() const;
    // How far, in pixels, the marquee has scrolled the text to the left; back to 0 after
    // a whole turn (text width plus the gap).
    int scrollOffset() const;
    // The item name's width in pixels in the label's font, as last measured.
    int textWidth() const;
    // The width in pixels of the gap (one space) between the item name and its repeat in
    // the marquee; 0 until the label first rolls.
    int gapWidth() const;
    // The width set with setWidth() or computed by setCalTextLabel(); 0 at first. Below 1
    // the label takes its text as it is.
    int storedWidth() const;
    // The full text the marquee scrolls (setItemName(), setCalTextLabel()).
    QString itemName() const;
    // The marquee's timer (one updateText() a tick); made, stopped, on the first call.
    QTimer* rollTimer() const;

public slots:
    // One marquee step.
    void updateText();

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    // A new font (usually the theme's, applied at polish time) re-measures the text.
    void changeEvent(QEvent* event) override;

private:
    int m_textWidth = 0;
    int m_interval = 50;
    int m_step = 2;
    int m_offset = 0;
    QString m_gapText;
    int m_gapWidth = 0;
    bool m_rolling = false;
    bool m_rollRequested = false;
    int m_width = 0;
    mutable QTimer* m_timer = nullptr;
    QString m_itemName;
    QString m_sourceText; // last text given to setTextLabel
    QString m_paintText; // item name + gap + item name, built once when rolling starts
    // Text widths are shaped once per text and font: titles are laid out several
    // times while a page is built.
    int advanceOf(QString const& text) const;
    mutable QString m_measuredText;
    mutable QFont m_measuredFont;
    mutable int m_measuredWidth = -1;
};
