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
    // The tag's text; empty hides the tag.
    Q_PROPERTY(QString tagText READ tagText WRITE setTagText)
    // The caller's own tag colour (Custom kind).
    Q_PROPERTY(QColor tagColor READ tagColor WRITE setTagColor)
    // The tag's kind.
    Q_PROPERTY(Kind tagKind READ tagKind WRITE setTagKind)
public:
    // The tag's kind: "frameTagKind" is "none", "program", "preview", "source" or "custom".
    enum Kind { None = 0, Program, Preview, Source, Custom };
    Q_ENUM(Kind)

    // No tag (hidden, kind None), no right icon.
    explicit TypeFrameTag(QWidget* parent = nullptr);
    ~TypeFrameTag() override;

    // setTagKind(kind), then setTagText(text).
    void setTag(QString const& text, Kind kind);
    // The tag's text; empty hides the tag. The title is fitted to the room left.
    void setTagText(QString const& text);
    // The tag's text.
    QString tagText() const;
    // The tag's kind; Custom without a colour set is refused ("[TypeFrameTag] invalid tag
    // colour"), as is a value outside Kind.
    void setTagKind(Kind kind);
    // The tag's kind (None by default).
    Kind tagKind() const;
    // A caller's colour: kind becomes Custom.
    void setTagColor(QColor const& color);
    QColor tagColor() const; // invalid unless Custom

    void setLabelValue(QVariant value, int mode) override;
    QVariant getLabelValue() override;
    void editValue() override;
    void setContentDisabled(bool disabled) const override;
    void setContentFontSize(int size) override;

    // The tag (owned by the row).
    QLabel* tagLabel() const;

signals:
    // The page's press on the row; always false.
    void signalClicked(bool checked);

private:
    void applyKind();

    struct Impl;
    std::unique_ptr<Impl> d;
};

} // namespace Widget
} // namespace LCD
