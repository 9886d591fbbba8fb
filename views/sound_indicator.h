// SPDX-License-Identifier: Apache-2.0
#pragma once

class QLabel;
class QMovie;
class QObject;

namespace ostra {

/// The label that shows whether a sequence is being played: moving bars or a row of dots. GUI thread only.
class SoundIndicator {
public:
    /// `label` has its final size. It outlives this; `owner` becomes the parent of the movies.
    SoundIndicator(QLabel &label, QObject &owner) : label_(label), owner_(owner) {}

    void showIdle();
    void showPlaying();

private:
    void dropMovie();

    QLabel &label_;
    QObject &owner_;
    QMovie *movie_ = nullptr; ///< a child of `owner_`
};

} // namespace ostra
