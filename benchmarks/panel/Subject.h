#pragma once

#include <QScrollArea>

class QAbstractSlider;

/// How the host of a subject answers an edit: with nothing, with the edited value alone, or by
/// writing all values anew.
enum class Echo { None, One, All };

/**
 * A window of rows that is measured. The two subjects show the same rows in a scroll area of
 * 420 x 800 and store what the user edits.
 */
class Subject
{
public:
    virtual ~Subject() = default;

    /// Writes all rows' values of a round, as after loading a document.
    virtual void refresh(int round) = 0;

    /// Shows or hides the rows of the group as a click on its header does.
    virtual void setExpanded(bool expanded) = 0;

    /// One slider of the list, in view; its edits are answered as echo says.
    virtual QAbstractSlider *slider() = 0;
    void setEcho(Echo echo) { m_echo = echo; }

    /// Tells that the range or a hint of a row changed; false if the subject has nothing like it.
    virtual bool updateRow(int row) = 0;

    QScrollArea &window() { return m_window; }

protected:
    Subject();

    QScrollArea m_window;
    Echo m_echo = Echo::None;
};
