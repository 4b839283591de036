#pragma once

#include <QDeadlineTimer>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

/// The button of Qt's own file dialog that takes the choice.
inline QAbstractButton *acceptButtonOf(const QFileDialog *dialog)
{
    const auto *const box = dialog->findChild<QDialogButtonBox *>();
    for (QAbstractButton *button : box->buttons()) {
        if (box->buttonRole(button) == QDialogButtonBox::AcceptRole)
            return button;
    }
    return nullptr;
}

/// Types name into the entry of Qt's own file dialog and clicks the button that takes the choice.
inline void acceptByTyping(QFileDialog *dialog, const QString &name)
{
    auto *const entry = dialog->findChild<QLineEdit *>(QStringLiteral("fileNameEdit"));
    QAbstractButton *const accept = acceptButtonOf(dialog);
    // Its list, which comes when the disk has told the names, would take the click to close itself.
    entry->setCompleter(nullptr);
    const QDeadlineTimer end(10000);
    do {
        entry->selectAll();
        QTest::keyClicks(entry, name);
        // Another thread tells the dialog which names there are, and it looks only at what is typed.
        if (!accept->isEnabled())
            QTest::qWait(20);
    } while (!accept->isEnabled() && !end.hasExpired());
    QTest::mouseClick(accept, Qt::LeftButton);
}
