#pragma once

#include <QStringList>
#include <QtGlobal>

namespace TestSupport {

/// Takes the warnings of its lifetime away from the log and keeps their texts in order. One at a
/// time.
class MessageRecorder
{
public:
    MessageRecorder()
    {
        texts().clear();
        previous() = qInstallMessageHandler(&MessageRecorder::handle);
    }

    ~MessageRecorder() { qInstallMessageHandler(previous()); }

    MessageRecorder(const MessageRecorder &) = delete;
    MessageRecorder &operator=(const MessageRecorder &) = delete;

    QStringList warnings() const { return texts(); }

private:
    static QStringList &texts()
    {
        static QStringList list;
        return list;
    }

    static QtMessageHandler &previous()
    {
        static QtMessageHandler handler = nullptr;
        return handler;
    }

    static void handle(QtMsgType type, const QMessageLogContext &context, const QString &text)
    {
        if (type == QtWarningMsg)
            texts().append(text);
        else
            previous()(type, context, text);
    }
};

} // namespace TestSupport
