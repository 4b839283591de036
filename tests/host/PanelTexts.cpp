// Shows a panel with all types in a view, walks through what shows texts, and prints each text that is
// cut off and how many were looked at: panel-texts LOOK [squeezed] [-reverse]

#include <host/PanelLook.h>
#include <host/PropertyList.h>
#include <host/PropertyPanelView.h>
#include <host/PropertyStore.h>
#include <property/PropertyUI.h>
#include <property/editors/TexturePropertyEditor.h>

#include <support/Registry.h>

#include <QAbstractButton>
#include <QAbstractSpinBox>
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPixmap>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSet>
#include <QStyleOptionComboBox>
#include <QTabBar>
#include <QTabWidget>
#include <QTextEdit>
#include <QTextStream>
#include <QVector4D>

#include <cmath>

using namespace Tessark::PropertyHost;
using namespace Tessark::PropertyUI;

namespace {

constexpr int kTextMargin = 2; // what a line edit keeps free at both sides of its text, in pixels

QString text(const char *some)
{
    return QString::fromUtf8(some);
}

void addNumbersAndTexts(PropertyList &list)
{
    list.group(text("Numbers, texts and choices"), [&list] {
        list.integer(text("frames"), text("Frames"))
            .range(0, 100000)
            .help(text("How many there are."))
            .defaultValue(86400);
        list.number(text("gain"), text("Gain"))
            .range(-60, 60)
            .suffix(text(" dB"))
            .defaultValue(-59.5);
        list.percent(text("volume"), text("Volume")).range(0, 1).defaultValue(1);
        list.boolean(text("loop"), text("Play in a loop"));
        list.boolean(text("off"), text("Cannot be chosen")).enabled(false);
        list.string(text("title"), text("Title gypsy")).defaultValue(text("Harbour at dawn"));
        list.string(text("locked"), text("Job")).enabled(false).defaultValue(text("2026-0417"));
        list.text(text("notes"), text("Notes")).defaultValue(text("one take"));
        list.filename(text("folder"), text("Folder")).defaultValue(text("/home/ada/movies"));
        list.staticText(text("status"), text("Status")).defaultValue(text("Ready to go, jumping"));
        list.action(text("render"), text("Render the Preview"));
        list.choice(text("codec"), text("Codec"))
            .choices({text("Archive (lossless)"), text("Broadcast")});
        list.choice(text("fields"), text("Fields"))
            .choices({text("Progressive"), text("Upper first")})
            .radioButtons();
        list.separator();
    });
}

void addVectorsAndSizes(PropertyList &list)
{
    list.group(text("Vectors and sizes"), [&list] {
        const QVector4D low(-10, -10, -10, -10);
        const QVector4D high(10, 10, 10, 10);
        list.vec2(text("offset"), text("Offset")).range(low, high);
        list.vec3(text("lift"), text("Lift")).range(low, high).showSliders();
        list.vec3(text("power"), text("Power")).range(low, high).showSliders().showMultipleCheck();
        list.vec4(text("crop"), text("Crop")).range(low, high);
        list.size(text("frame"), text("Frame"))
            .aspectRatio({16, 9})
            .defaultValue(QSize(1920, 1080));
        list.renderSize(text("output"), text("Output"))
            .fullSize({1920, 1080})
            .defaultValue(QSize(1920, 1080));
    });
}

void addPictures(PropertyList &list)
{
    QPixmap picture(24, 24);
    picture.fill(Qt::darkCyan);
    list.tabs([&] {
        list.tab(text("Colours and pages"), [&] {
            list.color(text("tint"), text("Tint"));
            list.image(text("poster"), text("Poster")).defaultValue(picture);
        });
        list.tab(text("Pictures"), [&] {
            list.imageFormat(text("format"), text("Format"));
            list.texture(text("floor"), text("Floor"));
            list.transform2D(text("placement"), text("Placement")).collapsibleScale();
        });
    });
}

void addTextures(const PropertyPanelView &view)
{
    QPixmap picture(24, 24);
    picture.fill(Qt::darkCyan);
    QVector<PropertyEditor *> editors;
    view.panel()->getEditors(editors, kPropertyTypeTexture);
    for (PropertyEditor *editor : std::as_const(editors))
        qobject_cast<TexturePropertyEditor *>(editor)->setTextures(
            {{text("Wood, polished"), picture.toImage(), picture},
             {text("Sand"), picture.toImage(), picture}});
}

/// Whether there is a row of every type that has an editor.
bool hasEveryType(const PropertyList &list)
{
    QSet<QString> types;
    for (const Property *property : list.properties())
        types.insert(property->type);
    for (const LibraryEditor &editor : libraryEditors()) {
        if (!types.contains(editor.type))
            return false;
    }
    return true;
}

/// Makes the view as large as it must be for its panel to need no scroll bars.
void fitToPanel(PropertyPanelView &view)
{
    for (int i = 0; i < 3; ++i) {
        const QSize missing = view.panel()->minimumSizeHint().expandedTo(view.panel()->sizeHint())
                              - view.panel()->parentWidget()->size();
        view.resize(view.size() + missing);
        QCoreApplication::processEvents();
    }
}

/// What is cut off of the texts of a panel.
class Inspection
{
public:
    explicit Inspection(const PropertyPanelView &view)
        : m_view(view)
    {
        const QList<QWidget *> widgets = view.findChildren<QWidget *>();
        for (const QWidget *widget : widgets) {
            if (widget->isVisibleTo(&view))
                inspect(*widget);
        }
    }

    int count() const { return m_count; }
    QStringList clipped() const { return m_clipped; }

private:
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
        if (!label.text().isEmpty())
            check(label, label.text(), label.size(), label.sizeHint());
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
        const QRect place(widget.mapTo(&m_view, QPoint()), widget.size());
        QRect seen = place.intersected(m_view.rect());
        for (const QWidget *parent = widget.parentWidget(); parent && parent != &m_view;
             parent = parent->parentWidget())
            seen &= QRect(parent->mapTo(&m_view, QPoint()), parent->size());
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

    const PropertyPanelView &m_view;
    int m_count = 0;
    QStringList m_clipped;
};

PanelLook lookNamed(const QString &name)
{
    const QStringList names = {text("system"), text("light"), text("dark"), text("high-contrast")};
    return static_cast<PanelLook>(std::max(int(names.indexOf(name)), 0));
}

} // namespace

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    const QStringList arguments = QApplication::arguments();
    applyPanelLook(lookNamed(arguments.value(1)));
    QTextStream out(stdout);

    PropertyList list;
    addNumbersAndTexts(list);
    addVectorsAndSizes(list);
    addPictures(list);
    if (!hasEveryType(list)) {
        out << "there are types without row\n";
        return 1;
    }
    PropertyStore store;
    store.reset(list);
    PropertyPanelView view;
    view.setProperties(list, &store);
    addTextures(view);
    view.setDescriptionVisible(true);
    if (arguments.contains(text("squeezed")))
        view.findChild<QPushButton *>()->setFixedWidth(30);
    view.show();
    QCoreApplication::processEvents();

    int count = 0;
    auto *const tabs = view.findChild<QTabWidget *>();
    for (int page = 0; page < tabs->count(); ++page) {
        tabs->setCurrentIndex(page);
        QCoreApplication::processEvents();
        fitToPanel(view);
        const Inspection inspection(view);
        count += inspection.count();
        const QStringList clipped = inspection.clipped();
        for (const QString &line : clipped)
            out << "clipped: " << line << '\n';
    }
    out << count << " texts at " << view.devicePixelRatioF()
        << (QApplication::isRightToLeft() ? " from right to left\n" : " from left to right\n");
    if (arguments.size() > 2 && arguments.at(2).endsWith(text(".png")))
        view.grab().save(arguments.at(2));
    return 0;
}
