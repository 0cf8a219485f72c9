#pragma once

#include <QObject>

#include <optional>

// Holds the state a voice-note recorder would show. Nothing records, times or
// sends voice notes yet; the composer binds to these values.
class VoiceRecorder : public QObject
{
    Q_OBJECT
    Q_PROPERTY(bool isRecording READ isRecording CONSTANT)
    Q_PROPERTY(int elapsedSeconds READ elapsedSeconds CONSTANT)
    Q_PROPERTY(QString errorMessage READ errorMessage CONSTANT)

public:
    using QObject::QObject;

    bool isRecording() const { return m_isRecording; }
    int elapsedSeconds() const { return m_elapsedSeconds; }
    QString errorMessage() const { return m_errorMessage.value_or(QString()); }

private:
    bool m_isRecording = false;
    int m_elapsedSeconds = 0;
    std::optional<QString> m_errorMessage;
};
