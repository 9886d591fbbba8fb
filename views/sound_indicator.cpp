// SPDX-License-Identifier: Apache-2.0
#include "views/sound_indicator.h"

#include <QLabel>
#include <QMovie>
#include <QPixmap>

#include <utility>

namespace ostra {

void SoundIndicator::dropMovie()
{
    label_.clear(); // the label must not show a movie that is gone
    delete std::exchange(movie_, nullptr);
}

void SoundIndicator::showIdle()
{
    dropMovie();
    const double ratio = label_.devicePixelRatioF();
    QPixmap idle(QStringLiteral(":/audio/resources/icons/idle.png"));
    if (!idle.isNull())
        idle = idle.scaled(label_.size() * ratio, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    idle.setDevicePixelRatio(ratio);
    label_.setPixmap(idle);
}

void SoundIndicator::showPlaying()
{
    dropMovie();
    movie_ = new QMovie(QStringLiteral(":/audio/resources/icons/playing_sound_gif.gif"), QByteArray(), &owner_);
    movie_->setScaledSize(label_.size());
    label_.setMovie(movie_);
    movie_->start();
}

} // namespace ostra
