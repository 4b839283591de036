#include "PanelRenderer.h"

#include "PictureNames.h"
#include "Texts.h"
#include "TextureChoices.h"

#include <host/PropertyList.h>
#include <host/PropertyPanelView.h>
#include <host/PropertyStore.h>
#include <property/PropertyUI.h>

#include <QCoreApplication>
#include <QImage>
#include <QPixmap>
#include <QSaveFile>
#include <QTabWidget>
#include <QVBoxLayout>

#include <memory>

namespace Tessark::PropertyPanel {

namespace {

constexpr int kMargin = 12;
constexpr int kSmallestUsualWidth = 460;
constexpr double kMaximumPixels = 100'000'000.0; // of a picture: what the largest size asks for

/// A tab page by the way to it.
struct Step
{
    QTabWidget *tabs;
    int page;
};

QVector<QTabWidget *> tabGroups(const PropertyUI::PropertyEditorPanel &panel)
{
    QVector<PropertyUI::PropertyEditor *> editors;
    panel.getEditors(editors, PropertyUI::kPropertyTypeBeginTabGroup);
    QVector<QTabWidget *> groups;
    for (PropertyUI::PropertyEditor *editor : std::as_const(editors)) {
        if (auto *const tabs = qobject_cast<QTabWidget *>(editor->widget(nullptr)))
            groups.append(tabs);
    }
    return groups;
}

/// The pages around a page, outermost first, and the page itself.
QVector<Step> wayTo(QTabWidget *tabs, int page)
{
    QVector<Step> way{{tabs, page}};
    const QWidget *child = tabs;
    for (QWidget *parent = tabs->parentWidget(); parent; parent = parent->parentWidget()) {
        auto *const outer = qobject_cast<QTabWidget *>(parent);
        for (int i = 0; outer && i < outer->count(); ++i) {
            if (outer->widget(i)->isAncestorOf(child))
                way.prepend({outer, i});
        }
    }
    return way;
}

QStringList titlesOf(const QVector<Step> &way)
{
    QStringList titles;
    for (const Step &step : way)
        titles.append(step.tabs->tabText(step.page));
    return titles;
}

/// Makes the pages current and gives those that were.
QVector<Step> turnTo(const QVector<Step> &pages)
{
    QVector<Step> before;
    for (const Step &step : pages) {
        before.append({step.tabs, step.tabs->currentIndex()});
        step.tabs->setCurrentIndex(step.page);
    }
    return before;
}

std::unique_ptr<QWidget> makeSheet(PropertyHost::PropertyPanelView *view)
{
    auto sheet = std::make_unique<QWidget>();
    auto *const layout = new QVBoxLayout(sheet.get());
    layout->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    layout->addWidget(view);
    // Shown, so that everything is polished and laid out, but not on the screen. Without constraints
    // there are none to tell a platform that cannot take them.
    layout->setSizeConstraint(QLayout::SetNoConstraint);
    sheet->setAttribute(Qt::WA_DontShowOnScreen);
    sheet->show();
    return sheet;
}

/// The size of the sheet for the size that was asked for, if any.
QSize pictureSize(const PropertyHost::PropertyPanelView &view, const QSize &size)
{
    const QSize whole = view.contentsSize().grownBy(QMargins(kMargin, kMargin, kMargin, kMargin));
    return whole.expandedTo(size.isValid() ? size : QSize(kSmallestUsualWidth, 0));
}

/// Why no picture of that size can be drawn; empty when it can.
QString obstacle(const QSize &size, double scale, const QString &path)
{
    if (double(size.width()) * size.height() * scale * scale <= kMaximumPixels)
        return QString();
    return Texts::tr(
               "Cannot write %1: the panel takes %2 x %3 pixels, at most %4 megapixels are drawn")
        .arg(path)
        .arg(size.width() * scale)
        .arg(size.height() * scale)
        .arg(kMaximumPixels / 1'000'000);
}

/// Writes a picture of the sheet, whole or not at all; gives the reason when it cannot.
QString writePicture(QWidget &sheet, const QString &path)
{
    QSaveFile file(path);
    if (file.open(QIODevice::WriteOnly) && sheet.grab().save(&file, "PNG") && file.commit())
        return QString();
    return Texts::tr("Cannot write %1: %2").arg(path, file.errorString());
}

/// Adds one more picture, unless an earlier one failed.
void addPicture(RenderedPictures &pictures, QWidget &sheet, const QString &path)
{
    if (!pictures.error.isEmpty())
        return;
    QCoreApplication::sendPostedEvents(); // what a page that was turned to puts off, such as layout
    pictures.error = writePicture(sheet, path);
    if (pictures.error.isEmpty())
        pictures.files.append(path);
}

} // namespace

RenderedPictures renderPanel(const PropertyHost::PropertyList &list,
                             PropertyHost::PropertyStore &store, const QString &path,
                             const QSize &size)
{
    auto *const view = new PropertyHost::PropertyPanelView;
    const std::unique_ptr<QWidget> sheet = makeSheet(view); // takes the view over
    view->setTextsAsWritten(true);
    view->setProperties(list, &store);
    const PropertyUI::PropertyEditorPanel &panel = *view->panel();
    const TextureChoices textures(panel, &store, list.folder());

    RenderedPictures pictures;
    const QSize whole = pictureSize(*view, size);
    pictures.error = obstacle(whole, sheet->devicePixelRatioF(), path);
    if (!pictures.error.isEmpty())
        return pictures;
    sheet->resize(whole);
    PictureNames names(path);
    addPicture(pictures, *sheet, path);
    const QVector<QTabWidget *> groups = tabGroups(panel);
    for (QTabWidget *tabs : groups) {
        const int shown = tabs->currentIndex();
        for (int page = 0; page < tabs->count(); ++page) {
            if (page == shown || !tabs->isTabVisible(page))
                continue;
            const QVector<Step> way = wayTo(tabs, page);
            const QVector<Step> before = turnTo(way);
            addPicture(pictures, *sheet, names.forPage(titlesOf(way)));
            turnTo(before);
        }
    }
    return pictures;
}

} // namespace Tessark::PropertyPanel
