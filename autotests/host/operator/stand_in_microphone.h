// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QDialog>
#include <QString>
#include <QStringList>
#include <QTimer>

#include <functional>

class QLabel;
class QPushButton;
class QStackedWidget;

/// Has the names and the manners of the module's microphone dialog, in a tenth of the time: a choice of microphones, a page
/// that records and goes on by itself, a page that plays by itself and waits for the user. The pages share button names.
class StandInMicrophone : public QDialog {
    Q_OBJECT

public:
    enum class Outcome { open, heard, closed };
    enum class Moment { recording, playing, played };
    using Note = std::function<void(Moment moment)>;

    StandInMicrophone(const QStringList &microphones, Note note);

    Outcome outcome() const { return outcome_; }
    const QString &recordedBy() const { return recordedBy_; } ///< microphone that was chosen when NEXT was pressed
    int playCount() const { return playCount_; }
    int recordCount() const { return recordCount_; }

private:
    QPushButton *button(QWidget *page, const QString &name);
    QWidget *choicePage(const QStringList &microphones);
    QWidget *recordPage();
    QWidget *playPage();
    void goToRecord();
    void record();
    void play();
    void finish(Outcome outcome);

    Note note_;
    QStackedWidget *pages_;
    QPushButton *record_ = nullptr;
    QPushButton *play_ = nullptr;
    QPushButton *next_ = nullptr;
    QTimer timer_;
    QString recordedBy_;
    int recordCount_ = 0;
    int playCount_ = 0;
    Outcome outcome_ = Outcome::open;
};
