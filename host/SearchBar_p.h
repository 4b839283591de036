#pragma once

#include <QWidget>

#include <optional>

class QCheckBox;
class QLabel;
class QLineEdit;
class QToolButton;

namespace Tessark::PropertyHost {

/// Where the user says what to search for. It is silent when the program sets something.
class SearchBar final : public QWidget
{
    Q_OBJECT

public:
    explicit SearchBar(QWidget *parent);

    QString text() const;
    void setText(const QString &text);

    bool isOnlyChanged() const;
    void setOnlyChanged(bool onlyChanged);

    /// Says how many matches there are; current is the one that the user is at, counted from 0, or -1.
    void showMatches(int count, int current);

    /// Says nothing about matches, when nothing is searched for.
    void showNoSearch();

    /// What the user goes on typing replaces the text.
    void takeFocus();

    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    void searchChanged();
    void nextWanted();
    void previousWanted();
    void closeWanted();

protected:
    void changeEvent(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    void showTexts();
    void showCount();
    QString countText() const;
    bool isOwnKey(const QKeyEvent &event) const;

    QLineEdit *m_field;
    QToolButton *m_close;
    QCheckBox *m_onlyChanged;
    QLabel *m_count;
    std::optional<int> m_matches; // nothing while nothing is searched for
    int m_currentMatch = -1;
};

} // namespace Tessark::PropertyHost
