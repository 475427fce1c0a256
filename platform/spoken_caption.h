#pragma once

class QWidget;

namespace zeltrona::platform {

/// Lets a listener hear what a reader sees: the text of a button, a label or a group becomes its accessible
/// name, and the plain words that stood there become its description. A control without a text keeps its
/// plain words as the name, and a single sign is followed by them. To be called again when the text changes.
void speakCaption(QWidget& control);

/// The same for all that a form holds.
void speakCaptions(QWidget& form);

} // namespace zeltrona::platform
