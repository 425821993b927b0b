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
    Q_PROPERTY(LoadingState loadingState READ loadingState WRITE setLoadingState)
public:
    enum LoadingState { NotLoading = 0, Loading, LoadSucceeded, LoadFailed };
    Q_ENUM(LoadingState)

    explicit TypeItemMore(QWidget* parent = nullptr);
    ~TypeItemMore() override;

    void setLabelValue(QVariant value, int mode) override;
    QVariant getLabelValue() override;
    void setContentDisabled(bool disabled) const override;
    void setContentFontSize(int size) override;

    // Programme (on air) and preview marks.
    void setArea(bool programme, bool preview);
    bool hasArea() const;

    void setLoadingState(LoadingState state);
    LoadingState loadingState() const;

    QLabel* loadingLabel() const;
    // The loading animation; null until the first Loading state.
    QMovie* loadingMovie() const;
    QPushButton* programmeMark() const;
    QPushButton* previewMark() const;

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
