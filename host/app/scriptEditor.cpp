// SPDX-License-Identifier: Apache-2.0
#include "app/scriptEditor.h"

#include <QFontDatabase>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTextCharFormat>
#include <QVBoxLayout>

namespace host::app
{

namespace
{

constexpr int kMaxOutputLines = 20000;

// Readable on light and dark palettes alike; an invalid colour means the palette's text colour.
QColor colourOf(MessageKind kind)
{
    switch (kind) {
    case MessageKind::error:
        return QColor(214, 57, 57);
    case MessageKind::warning:
        return QColor(176, 112, 0);
    case MessageKind::info:
        return QColor(40, 124, 178);
    case MessageKind::result:
        return QColor(46, 139, 87);
    default:
        return QColor();
    }
}

} // namespace

ScriptEditor::ScriptEditor(QWidget *parent)
    : QWidget(parent), output_(new QPlainTextEdit(this)), input_(new QLineEdit(this))
{
    const QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    output_->setReadOnly(true);
    output_->setFont(font);
    output_->setMaximumBlockCount(kMaxOutputLines);
    output_->setObjectName("scriptOutput");
    input_->setFont(font);
    input_->setObjectName("scriptInput");
    input_->setPlaceholderText(tr("polyCube -h 4 -sy 4;"));
    input_->setToolTip(tr("Runs MEL. Up and Down bring earlier lines back."));
    input_->installEventFilter(this);

    auto *inputRow = new QHBoxLayout;
    auto *label = new QLabel(tr("&MEL"), this);
    label->setBuddy(input_);
    inputRow->addWidget(label);
    inputRow->addWidget(input_);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(4, 4, 4, 4);
    layout->addWidget(output_);
    layout->addLayout(inputRow);
    connect(input_, &QLineEdit::returnPressed, this, &ScriptEditor::enterCommand);
}

void ScriptEditor::show(const std::string &text, MessageKind kind)
{
    QString line = QString::fromStdString(framed(text, kind));
    if (line.endsWith('\n'))
        line.chop(1);
    QTextCursor cursor(output_->document());
    cursor.movePosition(QTextCursor::End);
    if (!output_->document()->isEmpty())
        cursor.insertBlock();
    QTextCharFormat format;
    const QColor colour = colourOf(kind);
    if (colour.isValid())
        format.setForeground(colour);
    cursor.insertText(line, format);
    output_->setTextCursor(cursor);
    output_->ensureCursorVisible();
}

QString ScriptEditor::text() const
{
    return output_->toPlainText();
}

void ScriptEditor::clear()
{
    output_->clear();
}

void ScriptEditor::enterCommand()
{
    const QString mel = input_->text().trimmed();
    if (mel.isEmpty())
        return;
    if (history_.isEmpty() || history_.last() != mel)
        history_.append(mel);
    recalled_ = int(history_.size());
    draft_.clear();
    input_->clear();
    emit commandEntered(mel);
}

bool ScriptEditor::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == input_ && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent *>(event)->key();
        if (key == Qt::Key_Up || key == Qt::Key_Down) {
            recall(key == Qt::Key_Up ? -1 : 1);
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
}

void ScriptEditor::recall(int step)
{
    const int wanted = recalled_ + step;
    if (wanted < 0 || wanted > int(history_.size()))
        return;
    if (recalled_ == int(history_.size()))
        draft_ = input_->text();
    recalled_ = wanted;
    input_->setText(wanted == int(history_.size()) ? draft_ : history_.at(wanted));
}

} // namespace host::app
