// A row with a coloured tag on the right, such as a tally mark ("PGM" in red, "PVW" in
// green) or a source label. The tag's kind sets its colour through the theme
// ("frameTagKind": "program", "preview", "source", "custom" or "none"); a caller's own
// colour (setTagColor) makes it "custom" and draws it in that colour, with black or
// white text chosen for contrast. An empty tag text hides the tag.
//
// The row only shows: the page's press (editValue) emits signalClicked(false) and does
// not take the knob. setLabelValue(value, _) sets the tag text, getLabelValue() returns it.
//
// Bad input is refused and logged at warning level, nothing changes:
// "[TypeFrameTag] invalid tag colour" (an invalid QColor), "[TypeFrameTag] unknown tag
// kind:" N (a value outside Kind).
#pragma once

#include "commonitemtype.h"
#include "lcdwidgets_global.h"

#include <QColor>
#include <memory>

class QLabel;

namespace LCD {
namespace Widget {

class LCDWIDGETS_EXPORT TypeFrameTag : public CommonItemType
{
    Q_OBJECT
    Q_PROPERTY(QString tagText READ tagText WRITE setTagText)
    Q_PROPERTY(QColor tagColor READ tagColor WRITE setTagColor)
    Q_PROPERTY(Kind tagKind READ tagKind WRITE setTagKind)
public:
    enum Kind { None = 0, Program, Preview, Source, Custom };
    Q_ENUM(Kind)

    explicit TypeFrameTag(QWidget* parent = nullptr);
    ~TypeFrameTag() override;

    void setTag(QString const& text, Kind kind);
    void setTagText(QString const& text);
    QString tagText() const;
    void setTagKind(Kind kind);
    Kind tagKind() const;
    // A caller's colour: kind becomes Custom.
    void setTagColor(QColor const& color);
    QColor tagColor() const; // invalid unless Custom

    void setLabelValue(QVariant value, int mode) override;
    QVariant getLabelValue() override;
    void editValue() override;
    void setContentDisabled(bool disabled) const override;
    void setContentFontSize(int size) override;

    QLabel* tagLabel() const;

signals:
    void signalClicked(bool checked);

private:
    void applyKind();

    struct Impl;
    std::unique_ptr<Impl> d;
};

} // namespace Widget
} // namespace LCD
