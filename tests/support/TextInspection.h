#pragma once

#include <QAbstractButton>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QStyleOptionComboBox>
#include <QStyleOptionFrame>
#include <QTabBar>

namespace TestSupport {

/// What is cut off of the texts that a window shows at once.
class TextInspection
{
public:
    explicit TextInspection(const QWidget &window)
        : m_window(window)
    {
        const QList<QWidget *> widgets = window.findChildren<QWidget *>();
        for (const QWidget *widget : widgets) {
            if (widget->isVisibleTo(&window))
                inspect(*widget);
        }
    }

    int count() const { return m_count; }
    QStringList clipped() const { return m_clipped; }

private:
    static constexpr int kTextMargin = 2; // what a line edit keeps free at both sides, in pixels

    void inspect(const QWidget &widget)
    {
        if (const auto *const label = qobject_cast<const QLabel *>(&widget))
            inspectLabel(*label);
        else if (const auto *const button = qobject_cast<const QAbstractButton *>(&widget))
            inspectButton(*button);
        else if (const auto *const box = qobject_cast<const QComboBox *>(&widget))
            inspectComboBox(*box);
        else if (const auto *const edit = qobject_cast<const QLineEdit *>(&widget))
            inspectLineEdit(*edit);
        else if (const auto *const bar = qobject_cast<const QTabBar *>(&widget))
            inspectTabs(*bar);
        else if (const auto *const view = qobject_cast<const QListView *>(&widget))
            inspectList(*view);
    }

    void inspectLabel(const QLabel &label)
    {
        const QSize needs = label.wordWrap() ? QSize(label.minimumSizeHint().width(),
                                                     label.heightForWidth(label.width()))
                                             : label.sizeHint();
        if (!label.text().isEmpty())
            check(label, label.text(), label.size(), needs);
    }

    /// Style options of buttons have what surrounds the text already.
    void inspectButton(const QAbstractButton &button)
    {
        if (!button.text().isEmpty())
            check(button, button.text(), button.size(),
                  button.minimumSizeHint().expandedTo(textSize(button, button.text())));
    }

    void inspectComboBox(const QComboBox &box)
    {
        QStyleOptionComboBox option;
        option.initFrom(&box);
        option.subControls = QStyle::SC_All;
        const QRect field = box.style()->subControlRect(QStyle::CC_ComboBox, &option,
                                                        QStyle::SC_ComboBoxEditField, &box);
        for (int i = 0; i < box.count(); ++i)
            check(box, box.itemText(i), field.size(), textSize(box, box.itemText(i)));
    }

    /// Those of spin boxes too.
    void inspectLineEdit(const QLineEdit &edit)
    {
        if (edit.displayText().isEmpty())
            return;
        const QMargins margins = edit.textMargins() + QMargins(kTextMargin, 0, kTextMargin, 0);
        QStyleOptionFrame option;
        option.initFrom(&edit);
        option.lineWidth = edit.hasFrame() ? edit.style()->pixelMetric(QStyle::PM_DefaultFrameWidth,
                                                                       nullptr, &edit)
                                           : 0;
        const QRect field =
            edit.style()->subElementRect(QStyle::SE_LineEditContents, &option, &edit);
        check(edit, edit.displayText(), field.marginsRemoved(margins).size(),
              textSize(edit, edit.displayText()));
    }

    void inspectTabs(const QTabBar &bar)
    {
        const bool isUpright =
            bar.shape() == QTabBar::RoundedWest || bar.shape() == QTabBar::RoundedEast;
        for (int i = 0; i < bar.count(); ++i) {
            const QRect seen = bar.tabRect(i).intersected(bar.rect());
            const QSize wanted = textSize(bar, bar.tabText(i));
            check(bar, bar.tabText(i), seen.size(), isUpright ? wanted.transposed() : wanted);
        }
    }

    void inspectList(const QListView &view)
    {
        for (int row = 0; view.model() && row < view.model()->rowCount(); ++row) {
            const QModelIndex index = view.model()->index(row, 0);
            const QRect seen = view.visualRect(index).intersected(view.viewport()->rect());
            check(view, index.data().toString(), seen.size(), view.sizeHintForIndex(index));
        }
    }

    static QSize textSize(const QWidget &widget, const QString &some)
    {
        return widget.fontMetrics().size(Qt::TextShowMnemonic | Qt::TextSingleLine, some);
    }

    /// Of what surrounds the widget, nothing may cover its edges either.
    void check(const QWidget &widget, const QString &some, const QSize &has, const QSize &needs)
    {
        ++m_count;
        const QRect place(widget.mapTo(&m_window, QPoint()), widget.size());
        QRect seen = place.intersected(m_window.rect());
        for (const QWidget *parent = widget.parentWidget(); parent && parent != &m_window;
             parent = parent->parentWidget())
            seen &= QRect(parent->mapTo(&m_window, QPoint()), parent->size());
        if (seen == place && has.width() >= needs.width() && has.height() >= needs.height())
            return;
        m_clipped.append(
            QStringLiteral("%1 \"%2\" has %3 x %4 of %5 x %6, seen %7 x %8 of %9")
                .arg(QLatin1String(widget.metaObject()->className()), some)
                .arg(has.width())
                .arg(has.height())
                .arg(needs.width())
                .arg(needs.height())
                .arg(seen.width())
                .arg(seen.height())
                .arg(QStringLiteral("%1 x %2").arg(place.width()).arg(place.height())));
    }

    const QWidget &m_window;
    int m_count = 0;
    QStringList m_clipped;
};

} // namespace TestSupport
