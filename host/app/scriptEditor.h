// SPDX-License-Identifier: Apache-2.0
// The Script Editor: all output, coloured by kind, above a line that runs MEL.
#pragma once

#include <QStringList>
#include <QWidget>

#include "scene/output.h"

class QLineEdit;
class QPlainTextEdit;

namespace host::app
{

class ScriptEditor : public QWidget
{
    Q_OBJECT

public:
    explicit ScriptEditor(QWidget *parent = nullptr);

    // Appends one message in its Script Editor form.
    void show(const std::string &text, MessageKind kind);
    QString text() const;

public slots:
    void clear();

signals:
    // The user confirmed a line of MEL; it is in the history already.
    void commandEntered(const QString &mel);

protected:
    // Up and Down in the input line walk the history.
    bool eventFilter(QObject *watched, QEvent *event) override;

private slots:
    void enterCommand();

private:
    void recall(int step);

    QPlainTextEdit *output_;
    QLineEdit *input_;
    QStringList history_;
    int recalled_ = 0; // place in history_; its size: the line being written
    QString draft_;    // that line, while an older one is shown
};

} // namespace host::app
