#include "robustness/Hand.h"
#include "robustness/Subjects.h"

#include "core/FilenameField.h"
#include "support/FileDialogs.h"

#include <QDeadlineTimer>
#include <QDir>
#include <QImage>
#include <QLineEdit>
#include <QPixmap>
#include <QTemporaryDir>
#include <QToolButton>

using namespace Tessark;
using namespace Tessark::PropertyUI;

namespace {

const QString kNameSet = QStringLiteral("filenameSet");

QVector<Impossible> impossibleForAll()
{
    return impossible(kNoRuns, Road::RunStarts, Road::RunEnds)
           + impossible(kNoClient, Road::KitClient) + impossible(kNoTimer, Occasion::Timer);
}

/// Types a text of its own into the line edit, then does the last thing.
Gesture typing(const QString &name, const QStringList &taps,
               const std::function<void(const Hand::Target &)> &finish)
{
    return {name, Occasion::User, taps, [finish](Bench &bench) {
                const Hand::Target edit = bench.control<QLineEdit>().data();
                Hand::focus(edit);
                Hand::type(edit, QStringLiteral("ab"));
                finish(edit);
            }};
}

QVector<Gesture> typingGestures(const QStringList &taps)
{
    return {typing(QStringLiteral("Return"), taps,
                   [](const Hand::Target &edit) {
                       Hand::key(edit, Qt::Key_Return);
                       Hand::leave(edit);
                   }),
            typing(QStringLiteral("focus is lost"), taps,
                   [](const Hand::Target &edit) { Hand::leave(edit); }),
            typing(QStringLiteral("Tab"), taps,
                   [](const Hand::Target &edit) { Hand::key(edit, Qt::Key_Tab); })};
}

Subject string()
{
    Subject subject = subjectOf(QStringLiteral("string"), kPropertyTypeString,
                                {QStringLiteral("one"), QStringLiteral("two")});
    subject.gestures = typingGestures({kSet, kChanged});
    // Return leaves the field in the end too, and Qt 5 says then once more that the edit ended.
    constexpr int kFirstThatEndsWithTheFocus = QT_VERSION < QT_VERSION_CHECK(6, 0, 0) ? 0 : 1;
    for (int i = kFirstThatEndsWithTheFocus; i < subject.gestures.size(); ++i)
        subject.gestures[i].laterOnly = {
            {QStringLiteral("deletes the widget"),
             QStringLiteral("QLineEdit goes on with itself where the focus ends an edit")}};
    subject.gestures.last().laterOnly.append(kFocusGoesToHost);
    subject.gestures += commonGestures();
    subject.impossible = impossibleForAll() + impossible(kNoKit, Road::KitSignal)
                         + impossible(kNoDialog, Occasion::Dialog);
    return subject;
}

/// The directories that the user picks in turn.
QString nextDirectory()
{
    static const QTemporaryDir s_root;
    static int s_count = 0;
    const QString name = QString::number(++s_count % 16);
    QDir(s_root.path()).mkpath(name);
    return s_root.filePath(name);
}

/// Lets the end of the dialog be told, and the dialog go. With Qt 5 it would otherwise stay until
/// control is back in the event loop, and all the time would be waited for nothing.
void waitForEndOf(const QPointer<QFileDialog> &dialog)
{
    const QDeadlineTimer end(10000); // so late that it never ends
    while (dialog && !end.hasExpired()) {
        QCoreApplication::processEvents();
        if (dialog && dialog->isHidden())
            QCoreApplication::sendPostedEvents(dialog, QEvent::DeferredDelete);
    }
}

Gesture fileDialog()
{
    return {
        QStringLiteral("dialog"), Occasion::Dialog, {kSet, kChanged, kNameSet}, [](Bench &bench) {
            const auto field = bench.control<UI::FilenameField>();
            if (!field)
                return;
            Hand::click(field->findChild<QToolButton *>(QStringLiteral("browseButton")));
            const QPointer<QFileDialog> dialog(field->findChild<QFileDialog *>());
            if (!dialog || !QTest::qWaitForWindowExposed(dialog))
                return;
            acceptByTyping(dialog, nextDirectory());
            waitForEndOf(dialog);
        }};
}

Subject filename()
{
    const QStringList taps{kSet, kChanged, kNameSet};
    Subject subject = subjectOf(QStringLiteral("filename"), kPropertyTypeFilename,
                                {QStringLiteral("/one"), QStringLiteral("/two")});
    const auto find = [](const Bench &bench) { return bench.control<UI::FilenameField>().data(); };
    subject.kitTaps = {kitTap(kNameSet, find, &UI::FilenameField::filenameSet)};
    subject.gestures = typingGestures(taps)
                       + QVector<Gesture>{{QStringLiteral("drop"), Occasion::User, taps,
                                           [](Bench &bench) {
                                               Hand::drop(bench.control<UI::FilenameField>().data(),
                                                          nextDirectory());
                                           }},
                                          fileDialog()}
                       + commonGestures();
    subject.impossible = impossibleForAll();
    return subject;
}

/// What the user cannot edit in the panel.
Subject shownOnly(const QString &type, const QVector<QVariant> &values)
{
    Subject subject = subjectOf(type, type, values, [values](Property &property) {
        if (values.isEmpty())
            property.setDefaultValue(1);
    });
    subject.gestures = commonGestures();
    subject.impossible = impossibleForAll() + impossible(kNoKit, Road::KitSignal)
                         + impossible(kNoDialog, Occasion::Dialog);
    return subject;
}

QVariant picture(Qt::GlobalColor color)
{
    QImage image(8, 8, QImage::Format_RGB32);
    image.fill(color);
    return image;
}

Subject image()
{
    Subject subject = shownOnly(kPropertyTypeImage, {picture(Qt::red), picture(Qt::blue)});
    subject.isSame = [](const QVariant &left, const QVariant &right) {
        return left.value<QPixmap>().toImage().pixel(4, 4)
               == right.value<QPixmap>().toImage().pixel(4, 4);
    };
    return subject;
}

QVector<Subject> subjects()
{
    const QVector<QVariant> texts{QStringLiteral("one"), QStringLiteral("two")};
    return {string(),
            filename(),
            shownOnly(kPropertyTypeText, texts),
            shownOnly(kPropertyTypeStaticText, texts),
            image(),
            shownOnly(kPropertyTypeSeparator, {})};
}

} // namespace

TESSARK_CALLBACK_MATRIX("texts", subjects(), 1014)
