// A row holding a PreviewWidget (the 16:9 picture of the layer windows), without title
// or icons, the preview centred. The page's press (editValue) gives the row the knob to
// choose the current layer: Up the next layer towards the front, Down the previous one
// (one per detent, the level is not used: layers are few), stopping at the ends. Each
// change emits signalCurrentLayerChanged(index) and signalValueChanged(QVariant(index)).
// Escape or the press again hands the knob back (focus to the parent,
// signalCloseEditStatus(), signalEditFinished()). The preview stays the host's to fill
// (preview()); setLabelValue(value, _) / getLabelValue() are the current layer.
//
// Refused and logged: editValue() without layers ("[TypePreviewWidget] no layers to
// choose from", debug level, the knob stays with the page); "[TypePreviewWidget] invalid
// preview height:" N (h minus the font size below 1); bad layer indexes as in PreviewWidget.
// Theme: the row has "isPreviewEditing" (true while choosing).
#pragma once

#include "commonitemtype.h"
#include "lcdwidgets_global.h"

#include <memory>

namespace LCD {
namespace Widget {

class PreviewWidget;

class LCDWIDGETS_EXPORT TypePreviewWidget : public CommonItemType
{
    Q_OBJECT
public:
    // An empty preview, no title, no icons.
    explicit TypePreviewWidget(QWidget* parent = nullptr);
    ~TypePreviewWidget() override;

    // The preview (owned by the row), for the host to fill.
    PreviewWidget* preview() const;
    // The preview's height is h less the row's content font size (a margin above and
    // below), its width 16/9 of that.
    void setPreviewHeight(int h);

    void setLabelValue(QVariant value, int mode) override;
    QVariant getLabelValue() override;
    void editValue() override;
    void closeEditValue() override;
    void setContentDisabled(bool disabled) const override;
    void setContentFontSize(int size) override;
    void setCurrentItem(bool current) override;
    int getWidgetRow() override;

    // The keys while choosing a layer, as described above.
    bool eventFilter(QObject* watched, QEvent* event) override;

signals:
    // The knob chose another layer (before signalValueChanged()).
    void signalCurrentLayerChanged(int index);

private:
    void setEditing(bool editing);

    struct Impl;
    std::unique_ptr<Impl> d;
};

} // namespace Widget
} // namespace LCD
