/* The platform's predefined control classes by their ordinals. A template
 * that names its class as quoted text stores the text; templates carry the
 * ordinal, and hosts reading them expect it. */
#ifndef EDITOR_CONTROL_CLASSES_H
#define EDITOR_CONTROL_CLASSES_H

#define CLASS_BUTTON 0x0080
#define CLASS_EDIT 0x0081
#define CLASS_STATIC 0x0082
#define CLASS_LISTBOX 0x0083
#define CLASS_SCROLLBAR 0x0084
#define CLASS_COMBOBOX 0x0085

#endif
