#include <host/HostHints.h>
#include <host/PropertyList.h>
#include <host/PropertyListReader.h>
#include <host/PropertyStore.h>
#include <host/UndoDelegate.h>
#include <host/ValueJson.h>

#include <property/PropertyUI.h>
#include <property/TextureChoice.h>
#include <property/editors/StringPropertyEditor.h>

#include <support/PictureFolder.h>

#include <QDir>
#include <QIcon>
#include <QImage>
#include <QImageWriter>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QPixmap>
#include <QSignalSpy>
#include <QTest>
#include <QUndoStack>

#include <memory>

#include <sys/stat.h>

using namespace Tessark::PropertyHost;
using namespace Tessark::PropertyUI;

namespace {

/// A JSON value from its text, through a document as files have it.
QJsonValue parse(const QByteArray &json)
{
    return QJsonDocument::fromJson("[" + json + "]").array().at(0);
}

QByteArray compact(const QJsonObject &object)
{
    return QJsonDocument(object).toJson(QJsonDocument::Compact);
}

Property makeProperty(const QString &type)
{
    return Property(QStringLiteral("name"), QStringLiteral("Label"), type);
}

QVariant makeTexture(const QString &name)
{
    return QVariant::fromValue(TextureChoice{name, QImage(), QIcon()});
}

QColor middleOf(const QImage &image)
{
    return image.pixelColor(image.rect().center());
}

QStringList texts(const QVector<Problem> &problems)
{
    QStringList result;
    for (const Problem &problem : problems)
        result.append(problem.toString(QStringLiteral("f")));
    return result;
}

QByteArray rowsOf(const QByteArray &rows)
{
    return R"({"version": 1, "properties": [)" + rows + "]}";
}

} // namespace

class tst_Pictures : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void pictureIsRead_data();
    void pictureIsRead();
    void relativePathStartsAtTheCurrentFolderWithoutAnother();
    void pictureIsUpright();
    void absentPictureIsNull_data();
    void absentPictureIsNull();
    void pathIsWrittenAsItWasRead();
    void pictureOfAnotherOriginHasNoJsonForm_data();
    void pictureOfAnotherOriginHasNoJsonForm();
    void badPicturesAreTold_data();
    void badPicturesAreTold();
    void largestPictureIsRead();
    void longPathIsCutInMessages();

    void texturesOfTheHint();
    void iconsAreSmall();
    void badTexturesAreTold_data();
    void badTexturesAreTold();
    void goodTexturesStayBesideBadOnes();
    void textureIsOneOfTheHint();
    void textureIsAPath();
    void badTextureValuesAreTold_data();
    void badTextureValuesAreTold();
    void textureIsWrittenAsItsName();

    void rowsWithBadPicturesStay();
    void valuesStartAtTheFolderOfTheList();
    void everyProblemOfValuesNamesItsPath();
    void storeKeepsThePathOfWhatTheEditorShows();
    void storeKeepsAnotherPicture();
    void noPictureIsKept();
    void undoTellsPicturesApart();
    void sameValue();

private:
    QString path(const char *name) const { return m_pictures.filePath(QLatin1String(name)); }
    std::optional<QVariant> read(const Property &property, const QByteArray &json,
                                 QString *error = nullptr) const;

    /// "there is no file "%1"" with the path of a name in the folder, for example.
    QString withPath(const QString &message, const char *name) const
    {
        return message.arg(path(name));
    }

    PictureFolder m_pictures;
};

std::optional<QVariant> tst_Pictures::read(const Property &property, const QByteArray &json,
                                           QString *error) const
{
    QString ignored;
    return valueFromJson(property, parse(json), error ? *error : ignored, m_pictures.path());
}

void tst_Pictures::initTestCase()
{
    // The rows under test are about reading, not about which editors exist.
    PropertyEditorPanel::InitialiseRegistry();
    for (const QString &type : {kPropertyTypeImage, kPropertyTypeTexture, kPropertyTypeImageFormat})
        PropertyEditorRegistry::Instance()->registerPropertyEditor(type,
                                                                   StringPropertyEditor::Factory);

    QVERIFY(QDir(m_pictures.path()).mkdir(QStringLiteral("sub")));
    m_pictures.addPicture(QStringLiteral("red.png"), Qt::red);
    m_pictures.addPicture(QStringLiteral("also red.png"), Qt::red);
    m_pictures.addPicture(QStringLiteral("glass.png"), QColor(10, 200, 30, 77));
    m_pictures.addPicture(QStringLiteral("sub/blue.bmp"), Qt::blue);
    m_pictures.addPicture(QStringLiteral("wide.png"), Qt::green, QSize(1000, 2));
    m_pictures.addPicture(QStringLiteral("high.png"), Qt::green, QSize(100, 400));
    m_pictures.addFile(QStringLiteral("text.png"), "no picture");
    m_pictures.addFile(QStringLiteral("empty.png"), QByteArray());
    m_pictures.addFile(QStringLiteral("cut.ppm"), "P6 9 9 255\nxyz");
    m_pictures.addFile(QStringLiteral("cut.png"), "\x89PNG\r\n\x1a\n");
    m_pictures.addFile(QStringLiteral("huge.pbm"), "P4 8001 4000\n");
    QCOMPARE(mkfifo(qPrintable(path("pipe.png")), 0600), 0);
}

void tst_Pictures::pictureIsRead_data()
{
    QTest::addColumn<QString>("written");
    QTest::addColumn<QColor>("color");

    QTest::newRow("relative") << QStringLiteral("red.png") << QColor(Qt::red);
    QTest::newRow("in a folder below") << QStringLiteral("sub/blue.bmp") << QColor(Qt::blue);
    QTest::newRow("up and down") << QStringLiteral("sub/../red.png") << QColor(Qt::red);
    QTest::newRow("absolute") << path("red.png") << QColor(Qt::red);
    QTest::newRow("resource") << QStringLiteral(":/qt-project.org/styles/commonstyle/images/"
                                                "stop-24.png")
                              << QColor();
}

void tst_Pictures::pictureIsRead()
{
    QFETCH(QString, written);
    QFETCH(QColor, color);
    QString error;

    const auto value =
        valueFromJson(makeProperty(kPropertyTypeImage), written, error, m_pictures.path());

    QVERIFY2(value.has_value(), qPrintable(error));
    QCOMPARE(value->userType(), int(QMetaType::QImage));
    QVERIFY(!value->value<QImage>().isNull());
    if (color.isValid())
        QCOMPARE(middleOf(value->value<QImage>()), color);
    QCOMPARE(valueToJson(makeProperty(kPropertyTypeImage), *value), QJsonValue(written));
}

void tst_Pictures::relativePathStartsAtTheCurrentFolderWithoutAnother()
{
    const Property property = makeProperty(kPropertyTypeImage);
    const QString before = QDir::currentPath();
    QString error;

    QVERIFY(!valueFromJson(property, parse(R"("red.png")"), error));
    QCOMPARE(error, QStringLiteral("there is no file \"red.png\""));
    QVERIFY(QDir::setCurrent(m_pictures.path()));
    const auto value = valueFromJson(property, parse(R"("red.png")"), error);
    QVERIFY(QDir::setCurrent(before));

    QVERIFY(value.has_value());
}

void tst_Pictures::pictureIsUpright()
{
    QImage image(8, 6, QImage::Format_RGB32);
    image.fill(Qt::white);
    QImageWriter writer(path("turned.jpg"));
    writer.setTransformation(QImageIOHandler::TransformationRotate90);
    QVERIFY(writer.write(image));

    const auto value = read(makeProperty(kPropertyTypeImage), R"("turned.jpg")");

    QVERIFY(value.has_value());
    QCOMPARE(value->value<QImage>().size(), QSize(6, 8));
}

void tst_Pictures::absentPictureIsNull_data()
{
    QTest::addColumn<QByteArray>("json");

    QTest::newRow("null") << QByteArray("null");
    QTest::newRow("empty text") << QByteArray(R"("")");
}

void tst_Pictures::absentPictureIsNull()
{
    QFETCH(QByteArray, json);
    const Property image = makeProperty(kPropertyTypeImage);
    const Property texture = makeProperty(kPropertyTypeTexture);

    const auto picture = read(image, json);
    const auto choice = read(texture, json);

    QVERIFY(picture.has_value() && choice.has_value());
    QCOMPARE(picture->userType(), int(QMetaType::QImage));
    QVERIFY(picture->value<QImage>().isNull());
    QCOMPARE(choice->userType(), qMetaTypeId<TextureChoice>());
    QVERIFY(choice->value<TextureChoice>().name.isEmpty());
    QCOMPARE(valueToJson(image, *picture), QJsonValue(QString()));
    QCOMPARE(valueToJson(texture, *choice), QJsonValue(QString()));
}

void tst_Pictures::pathIsWrittenAsItWasRead()
{
    const Property property = makeProperty(kPropertyTypeImage);
    const QJsonValue json(QStringLiteral("./sub//../red.png"));
    QString error;

    const auto value = valueFromJson(property, json, error, m_pictures.path());

    QVERIFY2(value.has_value(), qPrintable(error));
    QCOMPARE(valueToJson(property, *value), json);
    QImage copy = value->value<QImage>();
    copy.setPixelColor(0, 0, Qt::black); // detaches
    QCOMPARE(valueToJson(property, copy), json);
}

void tst_Pictures::pictureOfAnotherOriginHasNoJsonForm_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QJsonValue>("json");
    const QImage image(path("red.png"));
    const QJsonValue undefined(QJsonValue::Undefined);

    QTest::newRow("image") << QVariant(image) << undefined;
    QTest::newRow("pixmap") << QVariant(QPixmap::fromImage(image)) << undefined;
    QTest::newRow("icon") << QVariant(QIcon(QPixmap::fromImage(image))) << undefined;
    QTest::newRow("a path alone") << QVariant(QStringLiteral("red.png")) << undefined;
    QTest::newRow("null image") << QVariant(QImage()) << QJsonValue(QString());
    QTest::newRow("null pixmap") << QVariant(QPixmap()) << QJsonValue(QString());
    QTest::newRow("null icon") << QVariant(QIcon()) << QJsonValue(QString());
}

void tst_Pictures::pictureOfAnotherOriginHasNoJsonForm()
{
    QFETCH(QVariant, value);
    QFETCH(QJsonValue, json);

    QCOMPARE(valueToJson(makeProperty(kPropertyTypeImage), value), json);
}

void tst_Pictures::badPicturesAreTold_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<QString>("error");
    const auto row = [this](const char *name, const QString &message) {
        QTest::newRow(name) << QByteArray("\"" + QByteArray(name) + "\"")
                            << withPath(message, name);
    };
    row("none.png", QStringLiteral("there is no file \"%1\""));
    row("sub", QStringLiteral("\"%1\" is not a file"));
    row("pipe.png", QStringLiteral("\"%1\" is not a file"));
    row("text.png", QStringLiteral("\"%1\" cannot be read as a picture: Unsupported image format"));
    row("empty.png",
        QStringLiteral("\"%1\" cannot be read as a picture: Unsupported image format"));
    row("cut.ppm", QStringLiteral("\"%1\" cannot be read as a picture: Unable to read image data"));
    row("cut.png", QStringLiteral("\"%1\" does not tell the size of its picture"));
    row("huge.pbm", QStringLiteral("\"%1\" is too large: it has 8001 x 4000 pixels, at most 32 "
                                   "megapixels are read"));
    QTest::newRow("a number") << QByteArray("1")
                              << QStringLiteral("expected a path or null, found a number");
    QTest::newRow("an array") << QByteArray("[]")
                              << QStringLiteral("expected a path or null, found an array");
}

void tst_Pictures::badPicturesAreTold()
{
    QFETCH(QByteArray, json);
    QFETCH(QString, error);
    QString told;

    QVERIFY(!read(makeProperty(kPropertyTypeImage), json, &told));

    QCOMPARE(told, error);
}

void tst_Pictures::largestPictureIsRead()
{
    m_pictures.addFile(QStringLiteral("large.pbm"), "P4 8000 4000\n" + QByteArray(4000000, 'x'));
    QString error;

    const auto value = read(makeProperty(kPropertyTypeImage), R"("large.pbm")", &error);

    QVERIFY2(value.has_value(), qPrintable(error));
    QCOMPARE(value->value<QImage>().size(), QSize(8000, 4000));
}

void tst_Pictures::longPathIsCutInMessages()
{
    const QByteArray name = QByteArray(5000, 'x') + ".png";
    QString error;

    QVERIFY(!read(makeProperty(kPropertyTypeImage), "\"" + name + "\"", &error));

    QVERIFY(error.size() < 400);
    QVERIFY(error.endsWith(QStringLiteral("xxx.png\"")));
}

void tst_Pictures::texturesOfTheHint()
{
    const auto result = readPropertyList(rowsOf(R"({"name": "t", "type": "texture", "hints": {
        "textures": ["red.png", {"file": "sub/blue.bmp", "name": "Sea"}, {"file": "glass.png"}]
    }, "default": "Sea"})"),
                                         m_pictures.path());

    QCOMPARE(texts(result.problems), QStringList());
    QCOMPARE(result.list.folder(), m_pictures.path());
    const Property *const property = result.list.properties().value(0);
    const QVariantList textures = property->hint(kHostHintTextures).toList();
    QCOMPARE(textures.size(), 3);
    QStringList names;
    for (const QVariant &entry : textures) {
        const auto texture = entry.value<TextureChoice>();
        names.append(texture.name);
        QCOMPARE(texture.image.size(), QSize(8, 6));
        QVERIFY(!texture.icon.isNull());
    }
    QCOMPARE(names, (QStringList{QStringLiteral("red.png"), QStringLiteral("Sea"),
                                 QStringLiteral("glass.png")}));
    QCOMPARE(middleOf(property->defaultValue.value<TextureChoice>().image), QColor(Qt::blue));
}

void tst_Pictures::iconsAreSmall()
{
    const Property property = makeProperty(kPropertyTypeTexture);
    const auto iconSize = [&](const QByteArray &json) {
        const auto value = read(property, json);
        const QIcon icon = value ? value->value<TextureChoice>().icon : QIcon();
        return icon.availableSizes().value(0);
    };

    QCOMPARE(iconSize(R"("red.png")"), QSize(8, 6));
    QCOMPARE(iconSize(R"("high.png")"), QSize(16, 64));
    QCOMPARE(iconSize(R"("wide.png")"), QSize(64, 1));
}

void tst_Pictures::badTexturesAreTold_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<QString>("problem");
    const auto row = [](const char *name, const char *json, const QString &problem) {
        QTest::newRow(name) << QByteArray(json) << problem;
    };
    row("text", R"("red.png")", QStringLiteral(": expected an array, found a string"));
    row("number", "[1]",
        QStringLiteral("/0: expected a path or an object with \"file\", found a number"));
    row("empty path", R"([""])", QStringLiteral("/0: the path is empty"));
    row("missing file", R"(["red.png", "none.png"])",
        withPath(QStringLiteral("/1: there is no file \"%1\""), "none.png"));
    row("missing file of a name", R"([{"name": "n", "file": "none.png"}])",
        withPath(QStringLiteral("/0/file: there is no file \"%1\""), "none.png"));
    row("no file", R"([{"name": "n"}])", QStringLiteral("/0: \"file\" is missing"));
    row("file that is no text", R"([{"file": null}])",
        QStringLiteral("/0/file: expected a string, found null"));
    row("empty file", R"([{"file": ""}])", QStringLiteral("/0/file: the file is empty"));
    row("empty name", R"([{"file": "red.png", "name": ""}])",
        QStringLiteral("/0/name: the name is empty"));
    row("unknown key", R"([{"fiel": "red.png"}])",
        QStringLiteral("/0/fiel: unknown key (did you mean \"file\"?)"));
    row("same file twice", R"(["red.png", "red.png"])",
        QStringLiteral("/1: the name \"red.png\" is taken by a texture before"));
    row("same name twice",
        R"([{"file": "red.png", "name": "a"}, {"file": "wide.png", "name": "a"}])",
        QStringLiteral("/1: the name \"a\" is taken by a texture before"));
}

void tst_Pictures::badTexturesAreTold()
{
    QFETCH(QByteArray, json);
    QFETCH(QString, problem);

    const auto result = readPropertyList(
        rowsOf(R"({"name": "t", "type": "texture", "hints": {"textures": )" + json + "}}"),
        m_pictures.path());

    QCOMPARE(texts(result.problems),
             QStringList{QStringLiteral("f: error: /properties/0/hints/textures") + problem});
    QCOMPARE(result.list.properties().size(), 1);
}

void tst_Pictures::goodTexturesStayBesideBadOnes()
{
    const auto result = readPropertyList(rowsOf(R"({"name": "t", "type": "texture",
        "hints": {"textures": ["none.png", "red.png", {}]}, "default": "red.png"})"),
                                         m_pictures.path());

    QCOMPARE(result.problems.size(), 2);
    const Property *const property = result.list.properties().value(0);
    QCOMPARE(property->hint(kHostHintTextures).toList().size(), 1);
    QCOMPARE(property->defaultValue.value<TextureChoice>().name, QStringLiteral("red.png"));
}

void tst_Pictures::textureIsOneOfTheHint()
{
    Property property = makeProperty(kPropertyTypeTexture);
    QImage marked(3, 3, QImage::Format_RGB32);
    marked.fill(Qt::cyan);
    // A name wins over a file of the same name.
    property.setHint(kHostHintTextures,
                     QVariantList{makeTexture(QStringLiteral("wood")),
                                  QVariant::fromValue(
                                      TextureChoice{QStringLiteral("red.png"), marked, QIcon()})});

    const auto wood = read(property, R"("wood")");
    const auto red = read(property, R"("red.png")");

    QVERIFY(wood.has_value() && red.has_value());
    QCOMPARE(wood->value<TextureChoice>().name, QStringLiteral("wood"));
    QCOMPARE(red->value<TextureChoice>().image.size(), QSize(3, 3));
}

void tst_Pictures::textureIsAPath()
{
    Property property = makeProperty(kPropertyTypeTexture);

    for (int run = 0; run < 2; ++run) {
        const auto value = read(property, R"("sub/blue.bmp")");

        QVERIFY(value.has_value());
        const auto texture = value->value<TextureChoice>();
        QCOMPARE(texture.name, QStringLiteral("sub/blue.bmp"));
        QCOMPARE(middleOf(texture.image), QColor(Qt::blue));
        QVERIFY(!texture.icon.isNull());
        property.setHint(kHostHintTextures, QVariantList{makeTexture(QStringLiteral("wood"))});
    }
}

void tst_Pictures::badTextureValuesAreTold_data()
{
    QTest::addColumn<bool>("hasTextures");
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<QString>("error");

    QTest::newRow("a slip in the name")
        << true << QByteArray(R"("wod")")
        << QStringLiteral(
               "\"wod\" is neither one of the \"textures\" nor a file (did you mean \"wood\"?)");
    QTest::newRow("a file that is no picture")
        << true << QByteArray(R"("text.png")")
        << withPath(QStringLiteral("\"%1\" cannot be read as a picture: Unsupported image format"),
                    "text.png");
    QTest::newRow("a name without textures")
        << false << QByteArray(R"("wood")")
        << withPath(QStringLiteral("there is no file \"%1\""), "wood");
    QTest::newRow("a number") << true << QByteArray("0")
                              << QStringLiteral("expected the name of a texture, a path or null, "
                                                "found a number");
}

void tst_Pictures::badTextureValuesAreTold()
{
    QFETCH(bool, hasTextures);
    QFETCH(QByteArray, json);
    QFETCH(QString, error);
    Property property = makeProperty(kPropertyTypeTexture);
    if (hasTextures)
        property.setHint(kHostHintTextures, QVariantList{makeTexture(QStringLiteral("wood"))});
    QString told;

    QVERIFY(!read(property, json, &told));

    QCOMPARE(told, error);
}

void tst_Pictures::textureIsWrittenAsItsName()
{
    const Property property = makeProperty(kPropertyTypeTexture);

    QCOMPARE(valueToJson(property, makeTexture(QStringLiteral("Sea"))),
             QJsonValue(QStringLiteral("Sea")));
    QCOMPARE(valueToJson(property, QStringLiteral("Sea")), QJsonValue(QStringLiteral("Sea")));
    QVERIFY(valueToJson(property, 1).isUndefined());
}

void tst_Pictures::rowsWithBadPicturesStay()
{
    const auto result = readPropertyList(rowsOf(R"(
        {"name": "i", "type": "image", "default": "none.png"},
        {"name": "t", "type": "texture", "default": "none.png"})"),
                                         m_pictures.path());

    QCOMPARE(
        texts(result.problems),
        (QStringList{
            withPath(QStringLiteral("f: error: /properties/0/default: there is no file \"%1\""),
                     "none.png"),
            withPath(QStringLiteral("f: error: /properties/1/default: there is no file \"%1\""),
                     "none.png")}));
    QCOMPARE(result.list.properties().size(), 2);
    QVERIFY(!result.list.properties().at(0)->defaultValue.isValid());
}

void tst_Pictures::valuesStartAtTheFolderOfTheList()
{
    const auto result = readPropertyList(
        rowsOf(R"({"name": "i", "type": "image"}, {"name": "t", "type": "texture"})"),
        m_pictures.path());
    PropertyStore store;
    store.reset(result.list);
    QCOMPARE(compact(store.toJson(result.list)), QByteArray(R"({"i":"","t":""})"));

    const auto problems = store.readValues(R"({"i": "sub/blue.bmp", "t": "red.png"})", result.list);

    QCOMPARE(texts(problems), QStringList());
    QCOMPARE(compact(store.toJson(result.list)),
             QByteArray(R"({"i":"sub/blue.bmp","t":"red.png"})"));
}

void tst_Pictures::everyProblemOfValuesNamesItsPath()
{
    const auto result =
        readPropertyList(rowsOf(R"({"name": "i", "type": "image"})"), m_pictures.path());
    PropertyStore store;
    store.reset(result.list);

    const auto problems = store.readValues(R"({"i": "none.png"})", result.list);

    QCOMPARE(
        texts(problems),
        QStringList{withPath(QStringLiteral("f: error: /i: there is no file \"%1\""), "none.png")});
}

void tst_Pictures::storeKeepsThePathOfWhatTheEditorShows()
{
    const auto result = readPropertyList(
        rowsOf(R"({"name": "i", "type": "image", "default": "glass.png"})"), m_pictures.path());
    Property *const property = result.list.properties().first();
    PropertyStore store;
    store.reset(result.list);
    QVERIFY(store.readValues(R"({"i": "red.png"})", result.list).isEmpty());
    const QImage shown = store.value(property).value<QImage>();

    store.setValue(property, QPixmap::fromImage(shown), IPropertyEditorDelegate::NewChange);
    QCOMPARE(compact(store.toJson(result.list)), QByteArray(R"({"i":"red.png"})"));

    const QImage standard = property->defaultValue.value<QImage>();
    QSignalSpy spy(&store, &PropertyStore::valueChanged);
    store.setValue(property, QPixmap::fromImage(standard), IPropertyEditorDelegate::NewChange);
    QCOMPARE(compact(store.toJson(result.list)), QByteArray(R"({"i":"glass.png"})"));
    QCOMPARE(spy.count(), 1);
    QCOMPARE(spy.first().at(1).userType(), int(QMetaType::QImage));
}

void tst_Pictures::storeKeepsAnotherPicture()
{
    PropertyList list;
    Property &property = list.append(makeProperty(kPropertyTypeImage));
    PropertyStore store;
    store.reset(list);
    const QPixmap pixmap(path("red.png"));

    store.setValue(&property, pixmap, IPropertyEditorDelegate::NewChange);

    QCOMPARE(store.value(&property).value<QPixmap>().cacheKey(), pixmap.cacheKey());
    QCOMPARE(compact(store.toJson(list)), QByteArray("{}"));
}

void tst_Pictures::noPictureIsKept()
{
    const auto result = readPropertyList(
        rowsOf(R"({"name": "i", "type": "image", "default": "red.png"})"), m_pictures.path());
    PropertyStore store;
    store.reset(result.list);

    // As an image editor that shows nothing says it.
    store.setValue(result.list.properties().first(), QVariant(),
                   IPropertyEditorDelegate::NewChange);

    QCOMPARE(compact(store.toJson(result.list)), QByteArray(R"({"i":""})"));
}

void tst_Pictures::undoTellsPicturesApart()
{
    PropertyList list;
    Property &image = list.append(makeProperty(kPropertyTypeImage));
    PropertyStore store;
    QUndoStack stack;
    UndoDelegate delegate(&store, &stack);
    store.reset(list);
    const auto set = [&](const QByteArray &json) {
        delegate.setValue(&image, *read(image, json), IPropertyEditorDelegate::NewChange);
    };

    set(R"("red.png")");
    set(R"("red.png")");
    QCOMPARE(stack.count(), 1);
    set(R"("also red.png")");
    QCOMPARE(stack.count(), 2);

    stack.undo();
    QCOMPARE(compact(store.toJson(list)), QByteArray(R"({"name":"red.png"})"));
    stack.undo();
    QCOMPARE(compact(store.toJson(list)), QByteArray(R"({"name":""})"));
}

void tst_Pictures::sameValue()
{
    const Property texture = makeProperty(kPropertyTypeTexture);
    const Property image = makeProperty(kPropertyTypeImage);
    const Property format = makeProperty(kPropertyTypeImageFormat);
    const Property matrix = makeProperty(kPropertyTypeTransform2D);
    const Property number = makeProperty(kPropertyTypeFloat);
    const auto same = [this](const Property &property, const char *left, const char *right) {
        return isSameValue(property, *read(property, left), *read(property, right));
    };

    QVERIFY(same(texture, R"("red.png")", R"("red.png")"));
    QVERIFY(!same(texture, R"("red.png")", R"("also red.png")"));
    QVERIFY(same(image, R"("red.png")", R"("red.png")"));
    QVERIFY(!same(image, R"("red.png")", R"("also red.png")"));
    QVERIFY(!same(image, R"("red.png")", "null"));
    QVERIFY(same(format, R"({"format": "bmp"})", R"({"format": "bmp", "compressionRate": 0})"));
    QVERIFY(!same(format, R"({"format": "bmp"})", R"({"format": "png"})"));
    QVERIFY(same(matrix, R"("1 2 3 4 5 6 7 8 9")", "[1, 2, 3, 4, 5, 6, 7, 8, 9]"));
    QVERIFY(!same(matrix, R"("1 2 3 4 5 6 7 8 9")", "[1, 2, 3, 4, 5, 6, 7, 8, 0]"));
    QVERIFY(same(number, "1", "1.0"));
    QVERIFY(!same(number, "1", "1.1"));
    QVERIFY(isSameValue(image, QVariant(), QVariant()));
    QVERIFY(!isSameValue(image, QImage(path("red.png")), QVariant()));
    QVERIFY(isSameValue(image, QImage(path("red.png")), QImage(path("red.png"))));
}

QTEST_MAIN(tst_Pictures)
#include "tst_Pictures.moc"
