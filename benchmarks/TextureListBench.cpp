// Measures filling the list of a texture editor beside filling a bare QListWidget by hand, and how
// the cost of an entry grows with their number; then what a drag of files costs the list. All in one
// run, in processor time.
//
//   bench-texture-list [REPETITIONS]

#include "Measure.h"

#include <core/DropAcceptingListWidget.h>
#include <property/Property.h>
#include <property/editors/TexturePropertyEditor.h>

#include <QApplication>
#include <QDropEvent>
#include <QListWidget>
#include <QMimeData>
#include <QPixmap>
#include <QUrl>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <vector>

using namespace Tessark::PropertyUI;

namespace {

constexpr int kSmall = 1000;
constexpr int kLarge = 10000;
constexpr int kIcons = 16; // different ones
constexpr int kMoves = 1000;
constexpr QSize kEntrySize(32, 32);

QVector<TextureChoice> makeTextures(int count)
{
    QVector<QIcon> icons;
    for (int i = 0; i < kIcons; ++i) {
        QPixmap pixmap(kEntrySize);
        pixmap.fill(QColor::fromHsv(i * 359 / kIcons, 200, 200));
        icons.append(QIcon(pixmap));
    }
    QVector<TextureChoice> textures;
    for (int i = 0; i < count; ++i)
        textures.append({QStringLiteral("texture %1").arg(i), QImage(), icons.at(i % kIcons)});
    return textures;
}

void prepare(QListWidget *list)
{
    list->setFixedHeight(128);
    list->setIconSize(kEntrySize);
    list->resize(300, 128);
    list->show();
    settle();
}

/// A list that shows textures; filling it again replaces them.
class Subject
{
public:
    virtual ~Subject() = default;
    virtual void fill(const QVector<TextureChoice> &textures) = 0;
    virtual void pickLast() = 0;
};

class EditorSubject : public Subject
{
public:
    EditorSubject()
        : m_property(QStringLiteral("texture"), QString(), kPropertyTypeTexture)
        , m_editor(&m_property)
        , m_list(qobject_cast<QListWidget *>(m_editor.widget(nullptr)))
    {
        prepare(m_list.get());
    }

    void fill(const QVector<TextureChoice> &textures) override { m_editor.setTextures(textures); }
    void pickLast() override { m_list->setCurrentRow(m_list->count() - 1); }

private:
    Property m_property;
    TexturePropertyEditor m_editor;
    std::unique_ptr<QListWidget> m_list;
};

class BareSubject : public Subject
{
public:
    BareSubject() { prepare(&m_list); }

    void fill(const QVector<TextureChoice> &textures) override
    {
        m_list.clear();
        for (const TextureChoice &texture : textures) {
            auto *const item = new QListWidgetItem(texture.icon, texture.name);
            item->setSizeHint(kEntrySize);
            m_list.addItem(item);
        }
        if (m_picked >= 0)
            m_list.setCurrentRow(m_picked, QItemSelectionModel::ClearAndSelect);
        m_picked = -1;
    }

    void pickLast() override
    {
        m_picked = m_list.count() - 1;
        m_list.setCurrentRow(m_picked);
    }

private:
    QListWidget m_list;
    int m_picked = -1;
};

struct Costs
{
    double first = 0; // seconds, filling the empty list
    double again = 0; // seconds, replacing as many
    double shown = 0; // seconds, replacing as many, to the painted frame after it
    double picked =
        0; // seconds, replacing as many, the last row being picked before and shown after
};

using Series = std::vector<Costs>;

template <typename Kind>
Costs costsOf(const QVector<TextureChoice> &textures)
{
    Kind subject;
    Costs costs;
    costs.first = secondsOf([&] { subject.fill(textures); });
    settle();
    costs.again = secondsOf([&] { subject.fill(textures); });
    settle();
    costs.shown = secondsOf([&] {
        subject.fill(textures);
        settle();
    });
    subject.pickLast();
    settle();
    costs.picked = secondsOf([&] { subject.fill(textures); });
    return costs;
}

double medianPerEntry(const Series &series, double Costs::*what, int entries)
{
    std::vector<double> values;
    for (const Costs &costs : series)
        values.push_back(costs.*what * 1e6 / entries);
    return median(values);
}

void printRow(const char *title, const Series &small, const Series &large, double Costs::*what)
{
    const double smallCost = medianPerEntry(small, what, kSmall);
    const double largeCost = medianPerEntry(large, what, kLarge);
    std::printf("%-34s %9.3f %9.3f %9.2f\n", title, smallCost, largeCost, largeCost / smallCost);
}

/// Microseconds of one event of a drag, median over so many.
template <typename Event>
double eventCost(QWidget *viewport, const QMimeData &mime, int count)
{
    std::vector<double> values;
    for (int i = 0; i < count; ++i) {
        Event event(QPoint(10, 10 + i % 100), Qt::CopyAction, &mime, Qt::LeftButton,
                    Qt::NoModifier);
        values.push_back(secondsOf([&] { QCoreApplication::sendEvent(viewport, &event); }) * 1e6);
    }
    return median(values);
}

void measureDrag(int files, bool usableFirst)
{
    QList<QUrl> urls;
    for (int i = 1; i < files; ++i)
        urls.append(QUrl(QStringLiteral("https://example.com/%1.png").arg(i)));
    urls.insert(usableFirst ? 0 : urls.size(), QUrl(QStringLiteral("file:///folder/a.png")));
    QMimeData mime;
    mime.setUrls(urls);
    Tessark::UI::DropAcceptingListWidget list;
    list.setAcceptUrlsDrops(true);
    prepare(&list);

    const double enter = eventCost<QDragEnterEvent>(list.viewport(), mime, 101);
    const double move = eventCost<QDragMoveEvent>(list.viewport(), mime, kMoves);
    std::printf(
        "%-34s %9.2f %9.2f\n",
        qPrintable(QStringLiteral("%1 URLs, the %2 one local")
                       .arg(files)
                       .arg(usableFirst ? QStringLiteral("first") : QStringLiteral("last"))),
        enter, move);
}

} // namespace

int main(int argc, char **argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    const int repetitions = argc > 1 ? std::max(std::atoi(argv[1]), 1) : 11;

    const QVector<TextureChoice> few = makeTextures(kSmall);
    const QVector<TextureChoice> many = makeTextures(kLarge);
    costsOf<EditorSubject>(few);
    costsOf<BareSubject>(few);
    Series editorFew, editorMany, bareFew, bareMany;
    for (int i = 0; i < repetitions; ++i) {
        editorFew.push_back(costsOf<EditorSubject>(few));
        bareFew.push_back(costsOf<BareSubject>(few));
        editorMany.push_back(costsOf<EditorSubject>(many));
        bareMany.push_back(costsOf<BareSubject>(many));
    }

    std::printf("Qt %s, median of %d, microseconds of processor time an entry\n", qVersion(),
                repetitions);
    std::printf("%-34s %9s %9s %9s\n", "", "1,000", "10,000", "growth");
    printRow("setTextures, empty list", editorFew, editorMany, &Costs::first);
    printRow("by hand, empty list", bareFew, bareMany, &Costs::first);
    printRow("setTextures again", editorFew, editorMany, &Costs::again);
    printRow("by hand again", bareFew, bareMany, &Costs::again);
    printRow("setTextures again, painted", editorFew, editorMany, &Costs::shown);
    printRow("by hand again, painted", bareFew, bareMany, &Costs::shown);
    printRow("setTextures again, row picked", editorFew, editorMany, &Costs::picked);
    printRow("by hand again, row picked", bareFew, bareMany, &Costs::picked);

    std::printf("\nDrags over the list, microseconds an event\n%-34s %9s %9s\n", "", "enter",
                "move");
    for (const int files : {1, kLarge}) {
        measureDrag(files, true);
        measureDrag(files, false);
    }
    return 0;
}
