#include "fuzz/Desktop.h"

#include "fuzz/FuzzInput.h"

#include "support/MarkingTranslator.h"

#include <QApplication>
#include <QClipboard>
#include <QPalette>
#include <QStyle>
#include <QWidget>

#include <memory>

namespace Fuzz {

namespace {

const char *const kStyles[] = {"Fusion", "Windows"};

struct Changes
{
    bool style = false;
    std::unique_ptr<MarkingTranslator> translator;
};

Changes &changes()
{
    static Changes s_changes;
    return s_changes;
}

void changeStyle(FuzzInput &input)
{
    changes().style = true;
    QApplication::setStyle(QString::fromLatin1(input.pick(kStyles)));
}

void changeLanguage()
{
    auto &translator = changes().translator;
    if (translator)
        translator.reset();
    else
        translator = std::make_unique<MarkingTranslator>("Tessark::PropertyUI::VecPropertyEditor");
}

void changePalette(QWidget &window, FuzzInput &input)
{
    QPalette palette;
    palette.setColor(QPalette::Window, QColor{input.byte(), input.byte(), input.byte()});
    palette.setColor(QPalette::WindowText, QColor{input.byte(), input.byte(), input.byte()});
    window.setPalette(palette);
}

void changeFont(QWidget &window, FuzzInput &input)
{
    QFont font;
    font.setPointSize(1 + input.below(60));
    font.setBold(input.flip());
    window.setFont(font);
}

void changeActivity(QWidget &window, FuzzInput &input)
{
    QEvent event(input.flip() ? QEvent::WindowActivate : QEvent::WindowDeactivate);
    QApplication::sendEvent(&window, &event);
}

} // namespace

void changeDesktop(QWidget &window, FuzzInput &input)
{
    switch (input.below(8)) {
    case 0:
        changeStyle(input);
        break;
    case 1:
        changeLanguage();
        break;
    case 2:
        changePalette(window, input);
        break;
    case 3:
        changeFont(window, input);
        break;
    case 4:
        window.setLayoutDirection(input.flip() ? Qt::RightToLeft : Qt::LeftToRight);
        break;
    case 5:
        changeActivity(window, input);
        break;
    case 6:
        window.setVisible(!window.isVisible());
        break;
    default:
        window.resize(QSize{input.byte() * 4, input.byte() * 4});
    }
}

void resetDesktop()
{
    if (changes().style)
        QApplication::setStyle(QString::fromLatin1(kStyles[0]));
    changes() = {};
    QApplication::clipboard()->clear();
}

} // namespace Fuzz
