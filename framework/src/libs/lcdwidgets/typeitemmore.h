// A row that opens more content (a picture, a still, a macro): the "more" mark on the
// right, a value text, the programme and preview marks for content that is on air or on
// preview, and a loading state. While Loading, an animation turns beside the value; a
// failed load shows a broken-picture mark; NotLoading and LoadSucceeded show nothing.
// The animation only runs while the row is shown.
#pragma once

#include "commonitemtype.h"

class QLabel;
class QMovie;
class QPushButton;

namespace LCD {
namespace Widget {

class LCDWIDGETS_EXPORT TypeItemMore : public CommonItemType
{
    Q_OBJECT
    // The loading state (NotLoading by default).
    Q_PROPERTY(LoadingState loadingState READ loadingState WRITE setLoadingState)
public:
    // The content's loading state; the loading label's "loadingstate" property is "none",
    // "loading", "succeeded" or "failed".
    enum LoadingState { NotLoading = 0, Loading, LoadSucceeded, LoadFailed };
    Q_ENUM(LoadingState)

    // No value, no marks, NotLoading.
    explicit TypeItemMore(QWidget* parent = nullptr);
    ~TypeItemMore() override;

    void setLabelValue(QVariant value, int mode) override;
    QVariant getLabelValue() override;
    void setContentDisabled(bool disabled) const override;
    void setContentFontSize(int size) override;

    // Programme (on air) and preview marks.
    void setArea(bool programme, bool preview);
    // Whether the programme or the preview mark shows.
    bool hasArea() const;

    // Sets the state (see above); an unknown state is refused
    // ("TypeItemMore::setLoadingState: unknown state <n>").
    void setLoadingState(LoadingState state);
    // The loading state.
    LoadingState loadingState() const;

    // The label that shows the animation or the broken-picture mark (24 × 24 px).
    QLabel* loadingLabel() const;
    // The loading animation; null until the first Loading state.
    QMovie* loadingMovie() const;
    // The programme (on air) mark ("isPgmShow").
    QPushButton* programmeMark() const;
    // The preview mark ("isPvwShow").
    QPushButton* previewMark() const;

    // The loading animation's file, "./../share/themes/default/images/icon_picture_loading.gif".
    static QString loadingImage();

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    void createWidget();

    struct Impl;
    std::unique_ptr<Impl> d;
};

} // namespace Widget
} // namespace LCD
