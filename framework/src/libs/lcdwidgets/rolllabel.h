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
    void setPixmapLabel(QPixmap const& pixmap);
    bool getLabelRoll() const;
    void upateLabelRollingState();

    // Introspection for pages and tests.
    bool isRolling() const;
    int scrollOffset() const;
    int textWidth() const;
    int gapWidth() const;
    int storedWidth() const;
    QString itemName() const;
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
