// Lumora/LegacyImages.h
// The pictures that older screens use by fixed names, and the names of two of them. There are two functions for each,
// such as legacyAddDiet() and addDiet(); the second has the name that is also published to messages (Runtime/Class.h).
// Class::classProperties() lists the published names in the order of this file. Some first names do not match their
// picture, such as legacyIconOnce() for "icon_month", but callers rely on them.
// Threads: any. A picture is looked up once, at the first call of either function; later calls return the same object.
// Ownership: the pictures live until the process ends. Errors: a missing picture stops the process; when memory or
// descriptors run out, std::bad_alloc or std::system_error is thrown, and the next call tries again.
#pragma once

#include "Runtime/Export.h"
#include "UIKit/UIImage.h"
#include <string>

namespace Lumora::UIImage {

[[nodiscard]] LUMORA_EXPORT const UIKit::UIImage& legacyAddDiet();       // the picture "addDiet"
[[nodiscard]] LUMORA_EXPORT const UIKit::UIImage& addDiet();             // the same as legacyAddDiet()
[[nodiscard]] LUMORA_EXPORT const UIKit::UIImage& legacyDeleteAction();  // the picture "action_delete"
[[nodiscard]] LUMORA_EXPORT const UIKit::UIImage& actionDelete();        // the same as legacyDeleteAction()
[[nodiscard]] LUMORA_EXPORT const UIKit::UIImage& legacyActionGraphic(); // the picture "action_graphic"
[[nodiscard]] LUMORA_EXPORT const UIKit::UIImage& actionGraphic();       // the same as legacyActionGraphic()
[[nodiscard]] LUMORA_EXPORT const UIKit::UIImage& legacyRightArrow();    // the picture "arrow_right"
[[nodiscard]] LUMORA_EXPORT const UIKit::UIImage& rightArrow();          // the same as legacyRightArrow()
[[nodiscard]] LUMORA_EXPORT std::string legacyRightArrowName();          // the name "arrow_right"; nothing is looked up
[[nodiscard]] LUMORA_EXPORT std::string rightArrowName();                // the same as legacyRightArrowName()
[[nodiscard]] LUMORA_EXPORT const UIKit::UIImage& legacyDeleteButton();  // the picture "button_delete"
[[nodiscard]] LUMORA_EXPORT const UIKit::UIImage& deleteButton();        // the same as legacyDeleteButton()
[[nodiscard]] LUMORA_EXPORT const UIKit::UIImage& legacyCoachIcon();     // the picture "course_icon_coach"
[[nodiscard]] LUMORA_EXPORT const UIKit::UIImage& coachIcon();           // the same as legacyCoachIcon()
[[nodiscard]] LUMORA_EXPORT std::string legacyCoachIconName(); // the name "course_icon_coach"; nothing is looked up
[[nodiscard]] LUMORA_EXPORT std::string coachIconName();       // the same as legacyCoachIconName()
[[nodiscard]] LUMORA_EXPORT const UIKit::UIImage& legacyDietListViewButton();  // the picture "diet_list_view_button"
[[nodiscard]] LUMORA_EXPORT const UIKit::UIImage& dietListViewButton();        // the same as legacyDietListViewButton()
[[nodiscard]] LUMORA_EXPORT const UIKit::UIImage& legacyDietTableViewButton(); // the picture "diet_table_view_button"
[[nodiscard]] LUMORA_EXPORT const UIKit::UIImage& dietTableViewButton();      // the same as legacyDietTableViewButton()
[[nodiscard]] LUMORA_EXPORT const UIKit::UIImage& legacyDietSpinner();        // the picture "diet_spinner"
[[nodiscard]] LUMORA_EXPORT const UIKit::UIImage& dietSpinner();              // the same as legacyDietSpinner()
[[nodiscard]] LUMORA_EXPORT const UIKit::UIImage& legacyDisclosureIcon();     // the picture "disclosure_icon"
[[nodiscard]] LUMORA_EXPORT const UIKit::UIImage& disclosureIcon();           // the same as legacyDisclosureIcon()
[[nodiscard]] LUMORA_EXPORT const UIKit::UIImage& legacyExerciseAdd();        // the picture "exercise_add"
[[nodiscard]] LUMORA_EXPORT const UIKit::UIImage& exerciseAdd();              // the same as legacyExerciseAdd()
[[nodiscard]] LUMORA_EXPORT const UIKit::UIImage& legacyExerciseAlt();        // the picture "exerciseCarousel"
[[nodiscard]] LUMORA_EXPORT const UIKit::UIImage& exerciseAlt();              // the same as legacyExerciseAlt()
[[nodiscard]] LUMORA_EXPORT const UIKit::UIImage& legacyExerciseInfo();       // the picture "exerciseInfo"
[[nodiscard]] LUMORA_EXPORT const UIKit::UIImage& exerciseInfo();             // the same as legacyExerciseInfo()
[[nodiscard]] LUMORA_EXPORT const UIKit::UIImage& legacyFloatingButtonAdd();  // the picture "floatingButtonAdd"
[[nodiscard]] LUMORA_EXPORT const UIKit::UIImage& floatingButtonAdd();        // the same as legacyFloatingButtonAdd()
[[nodiscard]] LUMORA_EXPORT const UIKit::UIImage& legacyFeedArrow();          // the picture "floatingButtonToBottom"
[[nodiscard]] LUMORA_EXPORT const UIKit::UIImage& feedArrow();                // the same as legacyFeedArrow()
[[nodiscard]] LUMORA_EXPORT const UIKit::UIImage& legacyIconAdd();            // the picture "iconAdd"
[[nodiscard]] LUMORA_EXPORT const UIKit::UIImage& iconAdd();                  // the same as legacyIconAdd()
[[nodiscard]] LUMORA_EXPORT const UIKit::UIImage& legacyCommentsIcon();       // the picture "icon_comments"
[[nodiscard]] LUMORA_EXPORT const UIKit::UIImage& commentsIcon();             // the same as legacyCommentsIcon()
[[nodiscard]] LUMORA_EXPORT const UIKit::UIImage& legacyDislikeIcon();        // the picture "icon_dislike"
[[nodiscard]] LUMORA_EXPORT const UIKit::UIImage& dislikeIcon();              // the same as legacyDislikeIcon()
[[nodiscard]] LUMORA_EXPORT const UIKit::UIImage& legacyNavbarDone();         // the picture "icon_done"
[[nodiscard]] LUMORA_EXPORT const UIKit::UIImage& navbarDone();               // the same as legacyNavbarDone()
[[nodiscard]] LUMORA_EXPORT const UIKit::UIImage& legacyInfoIcon();           // the picture "icon_info"
[[nodiscard]] LUMORA_EXPORT const UIKit::UIImage& infoIcon();                 // the same as legacyInfoIcon()
[[nodiscard]] LUMORA_EXPORT const UIKit::UIImage& legacyLikeIcon();           // the picture "icon_like"
[[nodiscard]] LUMORA_EXPORT const UIKit::UIImage& likeIcon();                 // the same as legacyLikeIcon()
[[nodiscard]] LUMORA_EXPORT const UIKit::UIImage& legacyIconOnce();           // the picture "icon_month"
[[nodiscard]] LUMORA_EXPORT const UIKit::UIImage& iconMonth();                // the same as legacyIconOnce()
[[nodiscard]] LUMORA_EXPORT const UIKit::UIImage& legacyMoreVertical();       // the picture "icon_more_info_vertical"
[[nodiscard]] LUMORA_EXPORT const UIKit::UIImage& iconMoreVertical();         // the same as legacyMoreVertical()
[[nodiscard]] LUMORA_EXPORT const UIKit::UIImage& legacyIconMonth();          // the picture "icon_once"
[[nodiscard]] LUMORA_EXPORT const UIKit::UIImage& iconOnce();                 // the same as legacyIconMonth()
[[nodiscard]] LUMORA_EXPORT const UIKit::UIImage& legacyIconRemove();         // the picture "iconRemove"
[[nodiscard]] LUMORA_EXPORT const UIKit::UIImage& iconRemove();               // the same as legacyIconRemove()
[[nodiscard]] LUMORA_EXPORT const UIKit::UIImage& legacyExerciseVideo();      // the picture "icon_video"
[[nodiscard]] LUMORA_EXPORT const UIKit::UIImage& exerciseVideo();            // the same as legacyExerciseVideo()
[[nodiscard]] LUMORA_EXPORT const UIKit::UIImage& legacyNavbarCancel();       // the picture "navbar_cancel"
[[nodiscard]] LUMORA_EXPORT const UIKit::UIImage& navbarCancel();             // the same as legacyNavbarCancel()
[[nodiscard]] LUMORA_EXPORT const UIKit::UIImage& legacyNavbarAdd();          // the picture "navbar_add"
[[nodiscard]] LUMORA_EXPORT const UIKit::UIImage& navbarAdd();                // the same as legacyNavbarAdd()
[[nodiscard]] LUMORA_EXPORT const UIKit::UIImage& legacyNavbarSettings();     // the picture "navbar_settings"
[[nodiscard]] LUMORA_EXPORT const UIKit::UIImage& navbarSettings();           // the same as legacyNavbarSettings()
[[nodiscard]] LUMORA_EXPORT const UIKit::UIImage& legacyNavbarShoppingCart(); // the picture "navbarShoppingCart"
[[nodiscard]] LUMORA_EXPORT const UIKit::UIImage& navbarShoppingCart();       // the same as legacyNavbarShoppingCart()
[[nodiscard]] LUMORA_EXPORT const UIKit::UIImage& legacyNavbarEdit();         // the picture "navbar_edit"
[[nodiscard]] LUMORA_EXPORT const UIKit::UIImage& navbarEdit();               // the same as legacyNavbarEdit()
[[nodiscard]] LUMORA_EXPORT const UIKit::UIImage& legacyRadioButtonOff();     // the picture "radiobutton"
[[nodiscard]] LUMORA_EXPORT const UIKit::UIImage& radioButtonOff();           // the same as legacyRadioButtonOff()
[[nodiscard]] LUMORA_EXPORT const UIKit::UIImage& legacyRadioButtonOn();      // the picture "radiobutton_a"
[[nodiscard]] LUMORA_EXPORT const UIKit::UIImage& radioButtonOn();            // the same as legacyRadioButtonOn()
[[nodiscard]] LUMORA_EXPORT const UIKit::UIImage& legacySettings();           // the picture "settings"
[[nodiscard]] LUMORA_EXPORT const UIKit::UIImage& settings();                 // the same as legacySettings()
[[nodiscard]] LUMORA_EXPORT const UIKit::UIImage& legacyRatingStar();         // the picture "star_"
[[nodiscard]] LUMORA_EXPORT const UIKit::UIImage& ratingStar();               // the same as legacyRatingStar()
[[nodiscard]] LUMORA_EXPORT const UIKit::UIImage& legacyRatingStarBig();      // the picture "star_big_"
[[nodiscard]] LUMORA_EXPORT const UIKit::UIImage& ratingStarBig();            // the same as legacyRatingStarBig()
[[nodiscard]] LUMORA_EXPORT const UIKit::UIImage& legacyRatingStarA();        // the picture "star_a"
[[nodiscard]] LUMORA_EXPORT const UIKit::UIImage& ratingStarFilled();         // the same as legacyRatingStarA()
[[nodiscard]] LUMORA_EXPORT const UIKit::UIImage& legacyRatingStarBigA();     // the picture "star_big_a"
[[nodiscard]] LUMORA_EXPORT const UIKit::UIImage& ratingStarBigFilled();      // the same as legacyRatingStarBigA()
[[nodiscard]] LUMORA_EXPORT const UIKit::UIImage& legacyRatingStarHalf();     // the picture "star_half_a"
[[nodiscard]] LUMORA_EXPORT const UIKit::UIImage& ratingStarHalf();           // the same as legacyRatingStarHalf()
[[nodiscard]] LUMORA_EXPORT const UIKit::UIImage& legacySendIcon();           // the picture "send"
[[nodiscard]] LUMORA_EXPORT const UIKit::UIImage& sendIcon();                 // the same as legacySendIcon()
[[nodiscard]] LUMORA_EXPORT const UIKit::UIImage& legacyTabEdit();            // the picture "tabEdit"
[[nodiscard]] LUMORA_EXPORT const UIKit::UIImage& tabEdit();                  // the same as legacyTabEdit()
[[nodiscard]] LUMORA_EXPORT const UIKit::UIImage& legacyTargetLock();         // the picture "target_lock"
[[nodiscard]] LUMORA_EXPORT const UIKit::UIImage& targetLock();               // the same as legacyTargetLock()
[[nodiscard]] LUMORA_EXPORT const UIKit::UIImage& legacyWelcomeLogo();        // the picture "welcom_logo"
[[nodiscard]] LUMORA_EXPORT const UIKit::UIImage& welcomeLogo();              // the same as legacyWelcomeLogo()
[[nodiscard]] LUMORA_EXPORT const UIKit::UIImage& legacyCalendarBack();       // the picture "calendarBack"
[[nodiscard]] LUMORA_EXPORT const UIKit::UIImage& calendarBack();             // the same as legacyCalendarBack()
[[nodiscard]] LUMORA_EXPORT const UIKit::UIImage& legacyCalendarNext();       // the picture "calendarNext"
[[nodiscard]] LUMORA_EXPORT const UIKit::UIImage& calendarNext();             // the same as legacyCalendarNext()

} // namespace Lumora::UIImage
