// SPDX-License-Identifier: Apache-2.0
#pragma once

/// Message keys of the whole module. The module never shows text: the host translates these. A "|" inside a key separates
/// sentences that the host shows on lines of their own. Spelling is contract, misspellings included.
namespace ostra::keys {

/// The user typed other digits than were played (code 1).
inline constexpr const char *audioPlaybackTestWrongSequence = "AUDIO_PLAYBACK_TEST_WRONG_SEQUENCE";
/// The user heard nothing (code 1).
inline constexpr const char *userDidNotReportSound = "USER_DID_NOT_REPORT_SOUND";
/// The device could not be opened or played (code 4).
inline constexpr const char *audioDeviceCouldNotBeAccessed = "AUDIO_DEVICE_COULD_NOT_BE_ACCESSED";
/// An event of the machine (code 4).
inline constexpr const char *testCanceledByEvent =
    "TEST_CANCELED_BECAUSE_OF_AN_EVENT_THAT_COULD_COMPROMISE_THE_TEST_OUTCOME_HAPPENED";
/// No component that could be tested (code 3), or one that was lost in a run (code 4).
inline constexpr const char *deviceNotIdentifiedOrDisconnected =
    "THIS_TEST_CANNOT_BE_PERFORMED_BECAUSE_THE_DEVICE_COULD_NOT_BE_IDENTIFIED_OR_HAS_BEEN_DISCONNECTED";
/// The user cannot be asked (code 3).
inline constexpr const char *deviceCannotReceiveInput =
    "THIS_TEST_CANNOT_BE_PERFORMED_BECAUSE_THE_DEVICE_CAN_NOT_RECEIVE_INPUT";
/// Three sentences (code 4).
inline constexpr const char *internalError =
    "AN_INTERNAL_ERROR_OCCURRED._|THIS_DOES_NOT_INDICATE_A_FAILURE._|PLEASE_TRY_AGAIN.";
/// There is no microphone (code 4).
inline constexpr const char *noInputDevice = "NO_INPUT_DEVICE";
/// Begins every hint.
inline constexpr const char *possibleDefectiveComponents = "POSSIBLE_DEFECTIVE_COMPONENTS";

inline constexpr const char *speakers = "SPEAKERS";                               ///< a component of a hint
inline constexpr const char *microphone = "MICROPHONE";                           ///< a component of a hint
inline constexpr const char *cameraMicrophoneModule = "CAMERA_MICROPHONE_MODULE"; ///< a component of a hint

inline constexpr const char *quickAudio = "QUICK_AUDIO";                                       ///< name of the diagnostic
inline constexpr const char *quickAudioDescription = "QUICK_AUDIO_TESTS_TOOLTIP";              ///< its description
inline constexpr const char *audioPlaybackTest = "AUDIO_PLAYBACK_TEST";                        ///< name of the playback test
inline constexpr const char *audioPlaybackTestDescription = "AUDIO_PLAYBACK_TEST_DESCRIPTION"; ///< its description
inline constexpr const char *microphoneInteractiveTest = "MICROPHONE_INTERACTIVE_TEST";        ///< name of the microphone test
/// Description of the microphone test.
inline constexpr const char *microphoneInteractiveTestDescription = "MICROPHONE_INTERACTIVE_TEST_DESCRIPTION";

} // namespace ostra::keys
