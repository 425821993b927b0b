#include "numberpad.h"

#include "iplineedit.h"
#include "textkeys_p.h"
#include "ui_numberpad.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QKeyEvent>

namespace LCD {
namespace Widget {

const QString DEFAULT_IP_ADDRESS = QStringLiteral("192.168.0.50");

NumberPad::NumberPad(QRect geometry, QWidget* parent)
    : QFrame(parent), ui(std::make_unique<Ui_NumberPad>()), m_geometry(geometry)
{
    ui->setupUi(this);
    if (geometry.isValid())
        setGeometry(geometry);
    setProperty("isNetworkSettingFrame", true);
    setAttribute(Qt::WA_StyledBackground);

    ui->textLabel->setProperty("isIpTitleText", true);

    m_lineEdit = new IPLineEdit(this);
    m_lineEdit->setIpText(DEFAULT_IP_ADDRESS);
    m_lineEdit->setFontSize(24);
    auto* editorLayout = new QHBoxLayout(ui->lineeditFrame);
    editorLayout->setContentsMargins(0, 0, 0, 0);
    editorLayout->addWidget(m_lineEdit);

    QPushButton* const digits[10] = {ui->pushBtn_0, ui->pushBtn_1, ui->pushBtn_2, ui->pushBtn_3, ui->pushBtn_4,
                                     ui->pushBtn_5, ui->pushBtn_6, ui->pushBtn_7, ui->pushBtn_8, ui->pushBtn_9};
    for (int n = 0; n < 10; ++n) {
        QPushButton* b = digits[n];
        b->setProperty("isNumberPadPushBtn", true);
        // The digit is read back from the name.
        b->setObjectName(QString::number(n));
        b->setFocusPolicy(Qt::NoFocus);
        connect(b, &QPushButton::clicked, this, &NumberPad::slotNumberPushBtnClicked);
    }
    ui->pushBtn_dot->setProperty("isNumberPadDotPushBtn", true);
    ui->pushBtn_backSpace->setProperty("isNumberPadBackSpacePushBtn", true);
    ui->pushButton_ok->setProperty("isIconLongApply", true);
    ui->pushBtn_triangle->setProperty("isNumberPadTrianglePushBtn", true);
    for (QPushButton* b : {ui->pushBtn_dot, ui->pushBtn_backSpace, ui->pushButton_ok, ui->pushBtn_triangle})
        b->setFocusPolicy(Qt::NoFocus);
    // The back-space key is drawn by the theme.
    ui->pushBtn_backSpace->setText(QString());

    connect(ui->pushBtn_dot, &QPushButton::clicked, this, &NumberPad::slotDotPushBtnClicked);
    connect(ui->pushBtn_backSpace, &QPushButton::clicked, this, &NumberPad::slotBackSpacePushBtnClicked);
    connect(ui->pushButton_ok, &QPushButton::clicked, this, &NumberPad::slotOkPushBtnClicked);
    connect(ui->pushBtn_triangle, &QPushButton::clicked, this, &NumberPad::signalTriangleClicked);

    retranslateUi();
}

NumberPad::~NumberPad() = default;

IPLineEdit* NumberPad::lineEdit() const { return m_lineEdit; }

void NumberPad::setLabelText(QVariant text)
{
    m_title = text.toString();
    ui->textLabel->setText(QStringLiteral("%1:").arg(m_title));
}

void NumberPad::setLineEditText(QVariant text) { m_lineEdit->setIpText(text.toString()); }

void NumberPad::setIPFocus() const { m_lineEdit->setIPFocus(); }

void NumberPad::retranslateUi()
{
    ui->retranslateUi(this);
    ui->pushBtn_backSpace->setText(QString());
    if (m_title.isEmpty())
        ui->textLabel->setText(lcdTranslate(QStringLiteral("IP Address:")));
    else
        ui->textLabel->setText(QStringLiteral("%1:").arg(m_title));
    ui->pushButton_ok->setText(keyedText(QStringLiteral("NumberPadOk"), QStringLiteral("OK")));
}

void NumberPad::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslateUi();
    QFrame::changeEvent(event);
}

void NumberPad::sendPushBtnEvent(Qt::Key key, QString text) const
{
    QWidget* target = m_lineEdit->focusWidget();
    if (!target)
        return;
    QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, text, false, 1);
    QApplication::sendEvent(target, &press);
    QKeyEvent release(QEvent::KeyRelease, key, Qt::NoModifier, text, false, 1);
    QApplication::sendEvent(target, &release);
}

void NumberPad::slotNumberPushBtnClicked() const
{
    QObject const* button = sender();
    if (!button)
        return;
    bool ok = false;
    int const digit = button->objectName().toInt(&ok);
    bool const known = ok && digit >= 0 && digit < 10;
    auto const key = known ? static_cast<Qt::Key>(Qt::Key_0 + digit) : Qt::Key_unknown;
    sendPushBtnEvent(key, known ? QString::number(digit) : QString());
}

void NumberPad::slotDotPushBtnClicked() const { sendPushBtnEvent(Qt::Key_Period, QStringLiteral(".")); }

// The back-space key sends Escape: the editor decides what it means (it leaves the edit).
void NumberPad::slotBackSpacePushBtnClicked() const { sendPushBtnEvent(Qt::Key_Escape, QString()); }

void NumberPad::slotOkPushBtnClicked() { emit signalOkPushBtnClicked(m_lineEdit->Iptext()); }

} // namespace Widget
} // namespace LCD
