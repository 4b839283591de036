#include "support/TransformEditor.h"

#include <QTest>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <random>
#include <utility>

using namespace Tessark::PropertyUI;
using namespace TestSupport;

namespace {

/// What the editor is to do, as plain numbers: five fields and five sliders, shown or not, and
/// whether scale Y is folded away.
class Model
{
public:
    explicit Model(int hints)
        : m_hints(hints)
        , folded(isFoldable(hints))
    {
    }

    bool isBuilt(int id) const
    {
        if (id < 2)
            return !(m_hints & NoPosition);
        if (id == 2)
            return !(m_hints & NoRotation);
        return !(m_hints & NoScale) && (id == 3 || !(m_hints & Uniform));
    }

    bool isUsable(int id) const { return isBuilt(id) && !(id == 4 && folded); }

    int rowOf(int id) const
    {
        int row = 0;
        for (int other = 0; other < id; ++other)
            row += isBuilt(other);
        return row;
    }

    void moveSlider(int id, int position)
    {
        if (!putSlider(id, position))
            return;
        for (int other = 0; other < 5; ++other)
            putField(other, sliders[at(other)] / 1000.0);
        ++emissions;
    }

    void enter(int id, double number)
    {
        if (!putField(id, number))
            return;
        for (int other = 0; other < 5; ++other)
            putSlider(other, truncated(fields[at(other)]));
        ++emissions;
    }

    void fold(bool fold)
    {
        if (!isFoldable(m_hints))
            return;
        folded = fold;
        if (!fold || fields[4] == fields[3])
            return;
        fields[4] = fields[3];
        sliders[4] = sliders[3];
        ++emissions;
    }

    void show(const Numbers &numbers)
    {
        for (int id = 0; id < 5; ++id) {
            if (isBuilt(id)) {
                putField(id, numbers[at(id)]);
                putSlider(id, truncated(numbers[at(id)]));
            }
        }
        if (folded)
            fold(numbers[3] == numbers[4]);
    }

    Numbers value() const
    {
        Numbers numbers = kIdentity;
        for (int id = 0; id < 5; ++id) {
            if (isBuilt(id))
                numbers[at(id)] = fields[at(id)];
        }
        if ((m_hints & Uniform) || folded)
            numbers[4] = numbers[3];
        return numbers;
    }

private:
    static std::size_t at(int id) { return std::size_t(id); }

    static double lowest(int id) { return id < 2 ? -1.0 : id == 2 ? -180.0 : 0.0001; }
    static double highest(int id) { return id < 2 ? 1.0 : id == 2 ? 180.0 : 5.0; }

    /// Far beyond all sliders, but within int.
    static int truncated(double number)
    {
        return static_cast<int>(std::clamp(number * 1000.0, -1e6, 1e6));
    }

    bool putSlider(int id, int position)
    {
        const int low = static_cast<int>(lowest(id) * 1000.0);
        const int high = static_cast<int>(highest(id) * 1000.0);
        const int before = std::exchange(sliders[at(id)], std::clamp(position, low, high));
        return sliders[at(id)] != before;
    }

    bool putField(int id, double number)
    {
        char text[64];
        std::snprintf(text, sizeof text, "%.*f", id == 2 ? 2 : 4, number);
        const double rounded = QByteArray(text).toDouble();
        const double before =
            std::exchange(fields[at(id)], std::clamp(rounded, lowest(id), highest(id)));
        return fields[at(id)] != before;
    }

    int m_hints;

public:
    Numbers fields = kIdentity;
    std::array<int, 5> sliders{0, 0, 0, 1000, 1000};
    bool folded; // always false where nothing folds
    int emissions = 0;
};

class Random
{
public:
    int below(int end) { return std::uniform_int_distribution<int>(0, end - 1)(m_engine); }
    bool coin() { return below(2) == 0; }

    /// A number that a field rounds and a slider truncates the same way in the face of rounding
    /// errors: three tenths of the field's last digit above what it can show, sometimes beyond it.
    double number(int id)
    {
        if (id == 2)
            return (below(35800) - 17900 + 0.33) / 100;
        const int last = id < 2 ? below(24000) - 12000 : 1 + below(60000);
        return (last + 0.3) / 10000;
    }

    Numbers numbers()
    {
        Numbers numbers{};
        for (int id = 0; id < 5; ++id)
            numbers[std::size_t(id)] = number(id);
        if (coin())
            numbers[4] = numbers[3];
        return numbers;
    }

    /// Numbers whose matrix is exact in six digits.
    Numbers roundNumbers()
    {
        constexpr double kScales[] = {0.5, 1.0, 2.0, 4.0};
        return {(below(21) - 10) / 8.0, (below(21) - 10) / 8.0, 0, kScales[below(4)],
                kScales[below(4)]};
    }

private:
    std::mt19937 m_engine{20240229};
};

DoubleMatrix3x3 rounded(const LongMatrix &matrix)
{
    DoubleMatrix3x3 result;
    for (std::size_t i = 0; i < 9; ++i)
        result.data()[i] = static_cast<double>(matrix[i / 3][i % 3]);
    return result;
}

/// An editor and its model, which do the same.
struct Pair
{
    explicit Pair(int hints)
        : model(hints)
        , editor(hints)
    {
        editor.build();
        QObject::connect(editor.editor.get(), &PropertyEditor::valueChanged, [this] {
            ++emissions;
            if (answering) // in vain
                editor.setValue(Numbers{0.5, 0.5, 50, 0.5, 5});
        });
    }

    void moveSlider(int id, int position)
    {
        answering = true;
        editor.slider(model.rowOf(id))->setValue(position);
        model.moveSlider(id, position);
        answering = false;
    }

    void enter(int id, double number)
    {
        answering = true;
        editor.box(model.rowOf(id))->setValue(number);
        model.enter(id, number);
        answering = false;
    }

    void fold(bool fold)
    {
        editor.editor->setScaleExpanded(!fold);
        model.fold(fold);
    }

    void click()
    {
        editor.button->click();
        model.fold(!editor.button->isChecked());
    }

    void show(const Numbers &numbers, bool asText)
    {
        const DoubleMatrix3x3 matrix = rounded(productOf(numbers));
        if (asText)
            editor.editor->setValue(QMatrix3x3_toString(matrix));
        else
            editor.setValue(matrix);
        model.show(numbers);
    }

    /// Does one thing, picked at random, and tells which.
    QString act(Random &random)
    {
        const int id = random.below(5);
        switch (random.below(6)) {
        case 0:
            if (model.isUsable(id))
                moveSlider(id, id == 2 ? random.below(400000) - 200000 : random.below(6000) - 1000);
            return QStringLiteral("slider %1").arg(id);
        case 1:
            if (model.isUsable(id))
                enter(id, random.number(id));
            return QStringLiteral("field %1").arg(id);
        case 2:
            if (editor.button)
                click();
            return QStringLiteral("click");
        case 3:
            fold(random.coin());
            return QStringLiteral("fold");
        case 4:
            show(random.roundNumbers(), true);
            return QStringLiteral("text");
        default:
            show(random.numbers(), false);
            return QStringLiteral("matrix");
        }
    }

    bool agrees() const
    {
        for (int id = 0; id < 5; ++id) {
            if (!model.isBuilt(id))
                continue;
            const auto at = std::size_t(id);
            const int row = model.rowOf(id);
            if (editor.box(row)->value() != model.fields[at]
                || editor.slider(row)->value() != model.sliders[at]
                || editor.isShown(row) != model.isUsable(id))
                return false;
        }
        const bool isFolded = editor.button && !editor.button->isChecked();
        return (isFolded == model.folded || !model.isBuilt(4)) && emissions == model.emissions
               && errorOf(editor.value(), productOf(model.value())) <= 1e-12;
    }

    Model model;
    TransformEditor editor;
    int emissions = 0;
    bool answering = false; // the host sends other values back
};

} // namespace

/// Random series of what a user and a host may do, beside a model that does the same with plain
/// numbers.
class tst_Transform2DModel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void editorFollowsTheModel_data() { addAllTransformHints(); }
    void editorFollowsTheModel();
};

void tst_Transform2DModel::editorFollowsTheModel()
{
    QFETCH(int, hints);
    Random random;
    Pair pair(hints);
    QVERIFY(pair.agrees());

    QStringList done;
    for (int i = 0; i < 400; ++i) {
        done << pair.act(random);
        QVERIFY2(pair.agrees(), qPrintable(done.mid(done.size() - 4).join(QStringLiteral(", "))));
    }

    const bool hasRows = pair.editor.rows > 0;
    QCOMPARE(pair.emissions > 0, hasRows);
}

QTEST_MAIN(tst_Transform2DModel)
#include "tst_Transform2DModel.moc"
