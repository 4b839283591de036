#pragma once

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
    entry->selectAll();
    QTest::keyClicks(entry, name);
    QTest::mouseClick(acceptButtonOf(dialog), Qt::LeftButton);
}
