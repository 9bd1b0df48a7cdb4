#include "platform/qt/widgets/form_style.h"

#include <QApplication>
#include <QPainter>
#include <QPointer>
#include <QProxyStyle>
#include <QStyleOption>
#include <QWidget>

namespace {

constexpr int kFocusFrame = 2; // pixels around the control

class Style final : public QProxyStyle {
public:
    Style() : QProxyStyle(QStringLiteral("Fusion")) { setParent(qApp); }

    void drawControl(ControlElement element, QStyleOption const* option, QPainter* painter,
                     QWidget const* widget) const override
    {
        if (element != CE_FocusFrame) {
            QProxyStyle::drawControl(element, option, painter, widget);
            return;
        }
        constexpr int kHalf = kFocusFrame / 2;
        painter->setPen(QPen(option->palette.color(QPalette::WindowText), kFocusFrame, Qt::SolidLine,
                             Qt::SquareCap, Qt::MiterJoin));
        painter->drawRect(option->rect.adjusted(kHalf, kHalf, -kHalf, -kHalf));
    }

    [[nodiscard]] int pixelMetric(PixelMetric metric, QStyleOption const* option,
                                  QWidget const* widget) const override
    {
        bool const isFrame = metric == PM_FocusFrameHMargin || metric == PM_FocusFrameVMargin;
        return isFrame ? kFocusFrame : QProxyStyle::pixelMetric(metric, option, widget);
    }

    int styleHint(StyleHint hint, QStyleOption const* option, QWidget const* widget,
                  QStyleHintReturn* result) const override
    {
        return hint == SH_FocusFrame_AboveWidget ? 1 : QProxyStyle::styleHint(hint, option, widget, result);
    }
};

} // namespace

QStyle& FormStyle()
{
    static QPointer<QStyle> style; // the application object deletes it
    if (style == nullptr) {
        style = new Style;
    }
    return *style;
}

void InheritFormStyle(QWidget& control)
{
    if (control.parentWidget() == nullptr || control.parentWidget()->style() != &FormStyle()) {
        return;
    }
    control.setStyle(&FormStyle());
    for (QWidget* const part : control.findChildren<QWidget*>()) {
        part->setStyle(&FormStyle());
    }
}
