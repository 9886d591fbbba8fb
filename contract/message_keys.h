// SPDX-License-Identifier: Apache-2.0
#pragma once

/// Message keys of the whole module. The module never shows text: the host translates these. A "|" inside a key separates
/// sentences that the host shows on lines of their own. Spelling is contract, misspellings included.
namespace ostra::keys {

inline constexpr const char *audioPlaybackTestWrongSequence = "AUDIO_PLAYBACK_TEST_WRONG_SEQUENCE";
inline constexpr const char *userDidNotReportSound = "USER_DID_NOT_REPORT_SOUND";
inline constexpr const char *audioDeviceCouldNotBeAccessed = "AUDIO_DEVICE_COULD_NOT_BE_ACCESSED";
inline constexpr const char *testCanceledByEvent =
    "TEST_CANCELED_BECAUSE_OF_AN_EVENT_THAT_COULD_COMPROMISE_THE_TEST_OUTCOME_HAPPENED";
inline constexpr const char *deviceNotIdentifiedOrDisconnected =
    "THIS_TEST_CANNOT_BE_PERFORMED_BECAUSE_THE_DEVICE_COULD_NOT_BE_IDENTIFIED_OR_HAS_BEEN_DISCONNECTED";
inline constexpr const char *deviceCannotReceiveInput =
    "THIS_TEST_CANNOT_BE_PERFORMED_BECAUSE_THE_DEVICE_CAN_NOT_RECEIVE_INPUT";
inline constexpr const char *internalError =
    "AN_INTERNAL_ERROR_OCCURRED._|THIS_DOES_NOT_INDICATE_A_FAILURE._|PLEASE_TRY_AGAIN.";
inline constexpr const char *noInputDevice = "NO_INPUT_DEVICE";
inline constexpr const char *possibleDefectiveComponents = "POSSIBLE_DEFECTIVE_COMPONENTS";

inline constexpr const char *speakers = "SPEAKERS";
inline constexpr const char *microphone = "MICROPHONE";
inline constexpr const char *cameraMicrophoneModule = "CAMERA_MICROPHONE_MODULE";

inline constexpr const char *quickAudio = "QUICK_AUDIO";
inline constexpr const char *quickAudioDescription = "QUICK_AUDIO_TESTS_TOOLTIP";
inline constexpr const char *audioPlaybackTest = "AUDIO_PLAYBACK_TEST";
inline constexpr const char *audioPlaybackTestDescription = "AUDIO_PLAYBACK_TEST_DESCRIPTION";
inline constexpr const char *microphoneInteractiveTest = "MICROPHONE_INTERACTIVE_TEST";
inline constexpr const char *microphoneInteractiveTestDescription = "MICROPHONE_INTERACTIVE_TEST_DESCRIPTION";

} // namespace ostra::keys
