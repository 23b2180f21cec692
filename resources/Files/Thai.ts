<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="th" sourcelanguage="en">
<context>
    <name>BetweenScreen</name>
    <message>
        <source>The first camera is done. Now the second one.
Turn to other scenery.</source>
        <translation>กล้อง​ตัวแรก​เสร็จแล้ว ต่อไป​เป็น​ตัวที่สอง
หันไปทาง​ทิวทัศน์​อื่น</translation>
    </message>
    <message>
        <source>If you exit now, you can store the calibration of the first camera.</source>
        <translation>หากออกตอนนี้ คุณ​สามารถ​บันทึก​การ​ปรับเทียบ​ของ​กล้อง​ตัวแรก​ได้</translation>
    </message>
    <message>
        <source>If you exit now, nothing is stored.</source>
        <translation>หากออกตอนนี้ จะไม่มี​การบันทึก​สิ่งใด</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>ดำเนินการต่อ</translation>
    </message>
</context>
<context>
    <name>CaptureScreen</name>
    <message>
        <source>Photo %1 taken.</source>
        <translation>ถ่ายภาพที่ %1 แล้ว</translation>
    </message>
    <message>
        <source>How to move</source>
        <translation>วิธี​ขยับ​แท็บเล็ต</translation>
    </message>
    <message>
        <source>Restart</source>
        <translation>เริ่มใหม่</translation>
    </message>
    <message>
        <source>Paused. No photos are taken.</source>
        <translation>หยุดชั่วคราว ไม่มี​การถ่ายภาพ</translation>
    </message>
    <message>
        <source>Photo %1 brought nothing new. Turn farther.</source>
        <translation>ภาพที่ %1 ไม่มี​สิ่งใหม่ โปรดหัน​ต่อไป​อีก</translation>
    </message>
    <message>
        <source>Photo %1 brought nothing: too little detail in it.</source>
        <translation>ภาพที่ %1 ไม่มี​ประโยชน์: มีรายละเอียด​น้อยเกินไป</translation>
    </message>
</context>
<context>
    <name>CorrectionReadout</name>
    <message>
        <source>%1°</source>
        <translation>%1°</translation>
    </message>
</context>
<context>
    <name>FoundScreen</name>
    <message>
        <source>%1°</source>
        <translation>%1°</translation>
    </message>
    <message>
        <source>A new calibration was found.</source>
        <translation>พบค่า​การ​ปรับเทียบ​ใหม่แล้ว</translation>
    </message>
    <message>
        <source>The color camera has turned by %1 since the stored calibration:</source>
        <translation>กล้องสี​หมุนไป %1 เมื่อเทียบกับ​ค่า​การ​ปรับเทียบ​ที่บันทึกไว้:</translation>
    </message>
    <message>
        <source>to the right</source>
        <translation>ไปทางขวา</translation>
    </message>
    <message>
        <source>to the left</source>
        <translation>ไปทางซ้าย</translation>
    </message>
    <message>
        <source>upwards</source>
        <translation>ขึ้นด้านบน</translation>
    </message>
    <message>
        <source>downwards</source>
        <translation>ลงด้านล่าง</translation>
    </message>
    <message>
        <source>tilted clockwise</source>
        <translation>เอียง​ตามเข็ม​นาฬิกา</translation>
    </message>
    <message>
        <source>tilted counterclockwise</source>
        <translation>เอียง​ทวนเข็ม​นาฬิกา</translation>
    </message>
    <message>
        <source>Next, check it against the picture. It is stored only when you accept it.</source>
        <translation>จากนั้น​ตรวจสอบ​กับภาพ ค่าจะถูก​บันทึก​เมื่อคุณ​ยอมรับ​เท่านั้น</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>ดำเนินการต่อ</translation>
    </message>
    <message>
        <source>Offset in the photos: %1 px with the stored calibration, %2 px with the new one.</source>
        <translation>ความคลาดเคลื่อน​ในภาพ: %1 พิกเซล​เมื่อใช้​ค่า​การ​ปรับเทียบ​ที่บันทึกไว้ %2 พิกเซล​เมื่อใช้​ค่าใหม่</translation>
    </message>
    <message>
        <source>The stored calibration still fits.</source>
        <translation>ค่า​การ​ปรับเทียบ​ที่บันทึกไว้​ยังใช้ได้</translation>
    </message>
    <message>
        <source>The color camera has turned unusually far.</source>
        <translation>กล้องสี​หมุนไป​มาก​ผิดปกติ</translation>
    </message>
    <message>
        <source>A turn alone does not explain the photos. The camera may need service.</source>
        <translation>การหมุน​อย่างเดียว​อธิบาย​ภาพถ่าย​ไม่ได้ กล้อง​อาจต้อง​ส่งเข้ารับ​บริการ</translation>
    </message>
    <message>
        <source>Keep stored calibration</source>
        <translation>ใช้ค่า​ที่บันทึกไว้​ต่อไป</translation>
    </message>
</context>
<context>
    <name>History</name>
    <message>
        <source>History</source>
        <translation>ประวัติ</translation>
    </message>
    <message>
        <source>Turned by</source>
        <translation>มุม​ที่หมุน</translation>
    </message>
    <message>
        <source>Offset in the photos</source>
        <translation>ความคลาดเคลื่อน​ในภาพ</translation>
    </message>
    <message>
        <source>Stored</source>
        <translation>บันทึกแล้ว</translation>
    </message>
    <message>
        <source>Not stored</source>
        <translation>ไม่ได้​บันทึก</translation>
    </message>
    <message>
        <source>Reports: %1</source>
        <translation>รายงาน: %1</translation>
    </message>
</context>
<context>
    <name>HowToMove</name>
    <message>
        <source>How to move</source>
        <translation>วิธี​ขยับ​แท็บเล็ต</translation>
    </message>
    <message>
        <source>Point at scenery with detail.
Buildings and trees are good, near or far. Grass, sky and bare walls are too simple. Keep at least two steps away.</source>
        <translation>เล็งไปที่​ทิวทัศน์​ที่มี​รายละเอียด
อาคาร​และต้นไม้​เหมาะสม ไม่ว่าจะ​ใกล้​หรือไกล หญ้า ท้องฟ้า และผนัง​โล่ง​มีรายละเอียด​น้อยเกินไป เว้น​ระยะห่าง​อย่างน้อย​สองก้าว</translation>
    </message>
    <message>
        <source>Turn to another direction.
Turn the tablet a little to the side, up or down, so that the details come to lie elsewhere in the picture.</source>
        <translation>หัน​แท็บเล็ต​ไป​ทิศทางอื่น
หัน​แท็บเล็ต​เล็กน้อย​ไปด้านข้าง ขึ้น หรือลง เพื่อให้​รายละเอียด​ไปอยู่​ตำแหน่งอื่น​ในภาพ</translation>
    </message>
    <message>
        <source>Pause until it flashes.
Hold the tablet still for a moment. The photo is taken by itself. Then turn again.</source>
        <translation>หยุด​จนกว่า​หน้าจอ​จะกะพริบ
ถือ​แท็บเล็ต​ให้นิ่ง​สักครู่ ระบบจะ​ถ่ายภาพ​โดยอัตโนมัติ จากนั้น​หัน​แท็บเล็ต​อีกครั้ง</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>ปิด</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>เสร็จสิ้น</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>ถัดไป</translation>
    </message>
</context>
<context>
    <name>Interface</name>
    <message>
        <source>Pause to capture a calibration photo.</source>
        <translation>หยุดนิ่ง​เพื่อ​ถ่ายภาพ​ปรับเทียบ</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>ดำเนินการต่อ</translation>
    </message>
    <message>
        <source>Sunlight Required</source>
        <translation>ต้องมี​แสงแดด</translation>
    </message>
    <message>
        <source>There is not enough sunlight.
Move outside to a bright, sunlit area.</source>
        <translation>แสงแดด​ไม่เพียงพอ
โปรด​ออกไป​ด้านนอก​ยังบริเวณ​ที่สว่าง​และมี​แสงแดด</translation>
    </message>
    <message>
        <source>Sufficient Sunlight</source>
        <translation>แสงแดด​เพียงพอ</translation>
    </message>
    <message>
        <source>It&apos;s bright enough here!
Press continue.</source>
        <translation>ที่นี่​สว่าง​เพียงพอแล้ว
กด “ดำเนินการต่อ”</translation>
    </message>
    <message>
        <source>Color Camera</source>
        <translation>กล้องสี</translation>
    </message>
    <message>
        <source>First Color Camera</source>
        <translation>กล้องสี​ตัวแรก</translation>
    </message>
    <message>
        <source>Second Color Camera</source>
        <translation>กล้องสี​ตัวที่สอง</translation>
    </message>
    <message>
        <source>Align the colorful depth image with the color image.
Press Continue to accept the calibration of the color camera. Or press Restart to start over.</source>
        <translation>จัด​ภาพ​ความลึก​ที่แสดง​เป็นสี​ให้ตรง​กับภาพสี
กด “ดำเนินการต่อ” เพื่อ​ยอมรับ​การ​ปรับเทียบ​กล้องสี หรือกด “เริ่มใหม่” เพื่อ​เริ่มต้น​อีกครั้ง</translation>
    </message>
    <message>
        <source>Align the colorful depth image with the color image.
Press Continue to accept the calibration of the first color camera. Or press Restart to start over.</source>
        <translation>จัด​ภาพ​ความลึก​ที่แสดง​เป็นสี​ให้ตรง​กับภาพสี
กด “ดำเนินการต่อ” เพื่อ​ยอมรับ​การ​ปรับเทียบ​กล้องสี​ตัวแรก หรือกด “เริ่มใหม่” เพื่อ​เริ่มต้น​อีกครั้ง</translation>
    </message>
    <message>
        <source>Align the colorful depth image with the color image.
Press Continue to accept the calibration of the second color camera. Or press Restart to start over.</source>
        <translation>จัด​ภาพ​ความลึก​ที่แสดง​เป็นสี​ให้ตรง​กับภาพสี
กด “ดำเนินการต่อ” เพื่อ​ยอมรับ​การ​ปรับเทียบ​กล้องสี​ตัวที่สอง หรือกด “เริ่มใหม่” เพื่อ​เริ่มต้น​อีกครั้ง</translation>
    </message>
    <message>
        <source>The calibration is stored in the camera.</source>
        <translation>บันทึก​ค่า​การ​ปรับเทียบ​ในกล้องแล้ว</translation>
    </message>
    <message>
        <source>The last calibration was not stored in the camera.
Please calibrate again.</source>
        <translation>ค่า​การ​ปรับเทียบ​ครั้งล่าสุด​ไม่ได้​บันทึก​ในกล้อง
โปรด​ปรับเทียบ​อีกครั้ง</translation>
    </message>
    <message>
        <source>Last calibrated on %1.</source>
        <translation>ปรับเทียบ​ครั้ง​ล่าสุด​เมื่อ %1</translation>
    </message>
    <message>
        <source>The camera holds neither the last calibration nor the one before.
Please calibrate again.</source>
        <translation>กล้อง​ไม่มี​ทั้ง​ค่า​การ​ปรับเทียบ​ครั้ง​ล่าสุด​และ​ครั้ง​ก่อนหน้า
โปรด​ปรับเทียบ​อีกครั้ง</translation>
    </message>
    <message>
        <source>Move the device to capture a different calibration photo.</source>
        <translation>ขยับ​อุปกรณ์​เพื่อ​ถ่ายภาพ​ปรับเทียบ​อีกภาพ</translation>
    </message>
    <message>
        <source>Calibration isn&apos;t working because the scenery in these photos is too simple.
Let&apos;s try again. Point at interesting scenery like buildings or trees.</source>
        <translation>ปรับเทียบ​ไม่ได้ เนื่องจาก​ทิวทัศน์​ในภาพ​เหล่านี้​มีรายละเอียด​น้อยเกินไป
โปรดลอง​อีกครั้ง เล็งไปที่​ทิวทัศน์​ที่มี​รายละเอียด เช่น อาคาร​หรือต้นไม้</translation>
    </message>
    <message>
        <source>The camera said that it stored the calibration, but it did not</source>
        <translation>กล้อง​แจ้งว่า​บันทึก​ค่า​การ​ปรับเทียบแล้ว แต่ไม่ได้​บันทึก</translation>
    </message>
    <message>
        <source>The camera&apos;s images do not fit the new calibration</source>
        <translation>ภาพ​จาก​กล้อง​ไม่​ตรง​กับ​ค่า​การ​ปรับเทียบ​ใหม่</translation>
    </message>
    <message>
        <source>The camera does not answer</source>
        <translation>กล้อง​ไม่ตอบสนอง</translation>
    </message>
    <message>
        <source>A KXAPI call failed.</source>
        <translation>การเรียก KXAPI ล้มเหลว</translation>
    </message>
    <message>
        <source>The device has not been calibrated or has invalid calibration data.</source>
        <translation>อุปกรณ์​ยังไม่ได้​ปรับเทียบ​หรือมี​ข้อมูล​การ​ปรับเทียบ​ที่​ไม่ถูกต้อง</translation>
    </message>
    <message>
        <source>Something bad has happened with the Tarnex Deepvane camera.</source>
        <translation>เกิดปัญหา​ร้ายแรง​กับกล้อง Tarnex Deepvane</translation>
    </message>
    <message>
        <source>Please close all Tarnex Deepvane applications and any web browsers before proceeding.</source>
        <translation>โปรดปิด​แอปพลิเคชัน Tarnex Deepvane และเว็บ​เบราว์เซอร์​ทั้งหมด​ก่อน​ดำเนินการต่อ</translation>
    </message>
    <message>
        <source>Your Tarnex Deepvane camera needs a firmware update before this application can run. Please update your firmware and run the application again.</source>
        <translation>ต้อง​อัปเดต​เฟิร์มแวร์​ของกล้อง Tarnex Deepvane ก่อนจึงจะ​ใช้​แอปพลิเคชัน​นี้ได้ โปรด​อัปเดต​เฟิร์มแวร์​แล้วเรียกใช้​แอปพลิเคชัน​อีกครั้ง</translation>
    </message>
    <message>
        <source>An unknown error has occured.</source>
        <translation>เกิด​ข้อผิดพลาด​ที่ไม่รู้จัก</translation>
    </message>
    <message>
        <source>The connection broke off and could not be made again.</source>
        <translation>การ​เชื่อมต่อ​ขาดหาย​และไม่​สามารถ​เชื่อมต่อ​ได้อีก</translation>
    </message>
    <message>
        <source>The download server does not give what was expected of it.</source>
        <translation>เซิร์ฟเวอร์​ดาวน์โหลด​ไม่ได้​ส่งสิ่งที่​คาดไว้</translation>
    </message>
    <message>
        <source>The download could not be kept on the disk.</source>
        <translation>ไม่สามารถ​เก็บไฟล์​ที่ดาวน์โหลด​ลงในดิสก์</translation>
    </message>
    <message>
        <source>The download was damaged and has been removed.</source>
        <translation>ไฟล์​ที่ดาวน์โหลด​เสียหาย​และถูก​ลบแล้ว</translation>
    </message>
    <message>
        <source>This is a development build without a signature. It starts no installer.</source>
        <translation>นี่คือ​รุ่น​สำหรับ​การพัฒนา​ที่ไม่มี​ลายเซ็น จะไม่​เริ่ม​โปรแกรม​ติดตั้ง</translation>
    </message>
    <message>
        <source>The download is not signed by the maker of this program and has been removed.</source>
        <translation>ไฟล์​ที่ดาวน์โหลด​ไม่มี​ลายเซ็น​ของผู้ผลิต​โปรแกรมนี้​และถูก​ลบแล้ว</translation>
    </message>
    <message>
        <source>There is no installer for this system.</source>
        <translation>ไม่มี​โปรแกรม​ติดตั้ง​สำหรับ​ระบบนี้</translation>
    </message>
    <message>
        <source>The installer could not be started.</source>
        <translation>ไม่สามารถ​เริ่ม​โปรแกรม​ติดตั้ง</translation>
    </message>
    <message>
        <source>The battery is almost empty.
Connect the tablet to its charger. Then the calibration can be stored in the camera.</source>
        <translation>แบตเตอรี่​ใกล้หมด
โปรด​ต่อ​แท็บเล็ต​กับ​เครื่องชาร์จ จากนั้น​จึงจะ​บันทึก​ค่า​การ​ปรับเทียบ​ในกล้อง​ได้</translation>
    </message>
    <message>
        <source>Another program prevents this one from starting.
Switch the tablet off and on again.</source>
        <translation>โปรแกรมอื่น​ขัดขวาง​การเริ่ม​โปรแกรมนี้
ปิด​แท็บเล็ต​แล้วเปิด​อีกครั้ง</translation>
    </message>
    <message>
        <source>%1: read back, %2° from the calibration before.</source>
        <extracomment>%1 is the name of a camera, %2 an angle</extracomment>
        <translation>%1: อ่านกลับ​แล้ว ต่างจาก​การ​ปรับเทียบ​ก่อนหน้า %2°</translation>
    </message>
</context>
<context>
    <name>IntroductionScreen</name>
    <message>
        <source>Camera calibration</source>
        <translation>การ​ปรับเทียบ​กล้อง</translation>
    </message>
    <message>
        <source>Go outside into bright sunlight.</source>
        <translation>ออกไป​กลางแจ้ง​ในแสงแดด​จ้า</translation>
    </message>
    <message>
        <source>Point at buildings or trees, near or far. Move, pause, and up to eight photos are taken by themselves.</source>
        <translation>เล็งไปที่​อาคาร​หรือต้นไม้ ใกล้​หรือไกล​ก็ได้ ขยับ​แล้ว​หยุดนิ่ง ระบบ​จะถ่าย​ให้เอง​สูงสุด​แปดภาพ</translation>
    </message>
    <message>
        <source>Check the result with one finger, and store it in the camera.</source>
        <translation>ตรวจสอบ​ผลลัพธ์​ด้วย​นิ้วเดียว แล้ว​บันทึก​ลงในกล้อง</translation>
    </message>
    <message>
        <source>Takes about three minutes.</source>
        <translation>ใช้เวลา​ประมาณ​สามนาที</translation>
    </message>
    <message>
        <source>Takes about five minutes for both cameras.</source>
        <translation>ใช้เวลา​ประมาณ​ห้านาที​สำหรับ​กล้อง​ทั้งสองตัว</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>เริ่ม</translation>
    </message>
</context>
<context>
    <name>LeaveQuestion</name>
    <message>
        <source>Leave without storing?
The photos and what was found so far would be lost. The camera keeps its old calibration.</source>
        <translation>ออก​โดยไม่​บันทึกหรือไม่
ภาพถ่าย​และผลลัพธ์​ที่พบ​จะหายไป กล้อง​จะเก็บ​ค่า​การ​ปรับเทียบ​เดิมไว้</translation>
    </message>
    <message>
        <source>Leave</source>
        <translation>ออก</translation>
    </message>
    <message>
        <source>Stay</source>
        <translation>อยู่ต่อ</translation>
    </message>
    <message>
        <source>Store first camera</source>
        <translation>บันทึก​กล้อง​ตัวแรก</translation>
    </message>
</context>
<context>
    <name>LightPopup</name>
    <message>
        <source>Return to a well lit area.
It goes on by itself. The photos taken so far count.</source>
        <translation>กลับไป​ยังบริเวณ​ที่มี​แสงเพียงพอ
ระบบ​จะดำเนินการ​ต่อ​โดยอัตโนมัติ ภาพ​ที่ถ่ายแล้ว​ยังใช้ได้</translation>
    </message>
</context>
<context>
    <name>LightingScreen</name>
    <message>
        <source>Light</source>
        <translation>แสง</translation>
    </message>
    <message>
        <source>Enough light at the mark</source>
        <translation>แสงพอ​เมื่อถึง​เครื่องหมาย</translation>
    </message>
    <message>
        <source>It goes on by itself in a moment.</source>
        <translation>ระบบ​จะดำเนินการ​ต่อ​โดยอัตโนมัติ​ในอีก​สักครู่</translation>
    </message>
</context>
<context>
    <name>MapLegend</name>
    <message>
        <source>Detail missing here</source>
        <translation>ตรงนี้​ขาด​รายละเอียด</translation>
    </message>
    <message>
        <source>Enough detail</source>
        <translation>รายละเอียด​เพียงพอ</translation>
    </message>
    <message>
        <source>Turn this way next</source>
        <translation>ต่อไป​หันไป​ทางนี้</translation>
    </message>
</context>
<context>
    <name>NoticeScreen</name>
    <message>
        <source>Exit</source>
        <translation>ออก</translation>
    </message>
</context>
<context>
    <name>OpeningScreen</name>
    <message>
        <source>Opening the camera…</source>
        <translation>กำลัง​เปิดกล้อง…</translation>
    </message>
    <message>
        <source>This can take half a minute after the tablet was switched on.</source>
        <translation>อาจใช้​เวลา​ครึ่งนาที​หลังจาก​เปิด​แท็บเล็ต</translation>
    </message>
    <message>
        <source>The camera does not answer yet. Close other programs that use it, or press Exit and start again.</source>
        <translation>กล้อง​ยังไม่​ตอบสนอง โปรดปิด​โปรแกรมอื่น​ที่ใช้กล้อง หรือกด “ออก” แล้ว​เริ่ม​โปรแกรม​อีกครั้ง</translation>
    </message>
</context>
<context>
    <name>Pages</name>
    <message>
        <source>The depth camera was not found.</source>
        <translation>ไม่พบ​กล้อง​วัดความลึก</translation>
    </message>
    <message>
        <source>Close every other program that uses a camera.</source>
        <translation>ปิด​โปรแกรมอื่น​ทั้งหมด​ที่ใช้กล้อง</translation>
    </message>
    <message>
        <source>Switch the tablet off and on again.</source>
        <translation>ปิด​แท็บเล็ต​แล้วเปิด​อีกครั้ง</translation>
    </message>
    <message>
        <source>Start the calibration again. If the camera is still missing, the tablet needs service.</source>
        <translation>เริ่ม​การ​ปรับเทียบ​อีกครั้ง หากยัง​ไม่พบ​กล้อง ต้องส่ง​แท็บเล็ต​เข้ารับ​บริการ</translation>
    </message>
    <message>
        <source>The rear camera was not found.</source>
        <translation>ไม่พบ​กล้องหลัง</translation>
    </message>
    <message>
        <source>Check in the system&apos;s privacy settings that programs may use the camera.</source>
        <translation>ตรวจสอบ​ใน​การตั้งค่า​ความเป็นส่วนตัว​ของระบบ​ว่าโปรแกรม​ได้รับ​อนุญาต​ให้ใช้กล้อง</translation>
    </message>
    <message>
        <source>Check in the device manager that the rear camera is switched on.</source>
        <translation>ตรวจสอบ​ในตัว​จัดการ​อุปกรณ์​ว่าเปิดใช้​กล้องหลัง​อยู่</translation>
    </message>
    <message>
        <source>Start the calibration again.</source>
        <translation>เริ่ม​การ​ปรับเทียบ​อีกครั้ง</translation>
    </message>
    <message>
        <source>The rear camera delivers no picture.</source>
        <translation>กล้องหลัง​ไม่ส่ง​ภาพ</translation>
    </message>
    <message>
        <source>Close every other program that uses the rear camera.</source>
        <translation>ปิด​โปรแกรมอื่น​ทั้งหมด​ที่ใช้​กล้องหลัง</translation>
    </message>
    <message>
        <source>Make sure that nothing covers the camera.</source>
        <translation>ตรวจสอบ​ว่าไม่มี​สิ่งใด​บังกล้อง</translation>
    </message>
    <message>
        <source>Start the calibration again. What was found so far is not stored.</source>
        <translation>เริ่ม​การ​ปรับเทียบ​อีกครั้ง ผลลัพธ์​ที่พบ​จนถึง​ตอนนี้​ไม่ได้​บันทึก</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>ออก</translation>
    </message>
    <message>
        <source>Start the calibration again. The first camera&apos;s calibration can be stored when you leave.</source>
        <translation>เริ่ม​การ​ปรับเทียบ​อีกครั้ง สามารถ​บันทึก​ค่า​การ​ปรับเทียบ​ของ​กล้อง​ตัวแรก​ได้​เมื่อออก</translation>
    </message>
</context>
<context>
    <name>RefinementScreen</name>
    <message>
        <source>Too little depth in view. Point at something a few meters away.</source>
        <translation>มีข้อมูล​ความลึก​ในภาพ​น้อยเกินไป เล็งไปที่​สิ่งที่​อยู่ห่าง​ไม่กี่เมตร</translation>
    </message>
    <message>
        <source>Stored calibration</source>
        <translation>ค่า​การ​ปรับเทียบ​ที่บันทึกไว้</translation>
    </message>
    <message>
        <source>Restart</source>
        <translation>เริ่มใหม่</translation>
    </message>
    <message>
        <source>Hold to compare</source>
        <translation>กดค้าง​เพื่อ​เปรียบเทียบ</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>ดำเนินการต่อ</translation>
    </message>
    <message>
        <source>No upright edge in view. Point at a tree trunk, a pole or the corner of a house.</source>
        <translation>ไม่มี​ขอบ​แนวตั้ง​ใน​ภาพ เล็งไปที่​ลำต้น​ต้นไม้ เสา หรือ​มุมบ้าน</translation>
    </message>
    <message>
        <source>It usually fits already. Drag only if the lines lie beside the edges.</source>
        <translation>โดยทั่วไป​ตรงกัน​อยู่แล้ว ลาก​เฉพาะเมื่อ​เส้น​อยู่ข้าง​ขอบ​เท่านั้น</translation>
    </message>
</context>
<context>
    <name>RestartQuestion</name>
    <message>
        <source>Start over?
The photos and what was found so far would be lost.</source>
        <translation>เริ่มใหม่​หรือไม่
ภาพถ่าย​และผลลัพธ์​ที่พบ​จะหายไป</translation>
    </message>
</context>
<context>
    <name>SavingScreen</name>
    <message>
        <source>Storing the calibration in the camera…</source>
        <translation>กำลัง​บันทึก​ค่า​การ​ปรับเทียบ​ลงในกล้อง…</translation>
    </message>
    <message>
        <source>Please wait, and do not switch the tablet off.</source>
        <translation>โปรดรอ และ​อย่าปิด​แท็บเล็ต</translation>
    </message>
    <message>
        <source>The program closes by itself, or when you touch the screen.</source>
        <translation>โปรแกรม​จะปิด​โดยอัตโนมัติ หรือ​เมื่อ​แตะ​หน้าจอ</translation>
    </message>
</context>
<context>
    <name>StartScreen</name>
    <message>
        <source>Ready to take photos.
Point at buildings or trees in bright sunlight.</source>
        <translation>พร้อม​ถ่ายภาพ
เล็งไปที่​อาคาร​หรือต้นไม้​ในแสงแดด​จ้า</translation>
    </message>
    <message>
        <source>How to move</source>
        <translation>วิธี​ขยับ​แท็บเล็ต</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>เริ่ม</translation>
    </message>
</context>
<context>
    <name>Theme</name>
    <message>
        <source>Segoe UI</source>
        <extracomment>The font that Windows uses for this language.</extracomment>
        <translation>Leelawadee UI</translation>
    </message>
</context>
<context>
    <name>TutorialScreen</name>
    <message>
        <source>Example</source>
        <translation>ตัวอย่าง</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>ดำเนินการต่อ</translation>
    </message>
    <message>
        <source>It usually fits already.</source>
        <translation>โดยทั่วไป​ตรงกัน​อยู่แล้ว</translation>
    </message>
    <message>
        <source>Every color is a distance. The white lines have to lie on the edges of things.</source>
        <translation>แต่ละสี​แสดง​ระยะห่าง เส้น​สีขาว​ต้องอยู่​บนขอบ​ของ​สิ่งต่าง ๆ</translation>
    </message>
    <message>
        <source>Only if they lie beside them, drag left or right until they fit.</source>
        <translation>เฉพาะเมื่อ​เส้น​อยู่ข้างขอบ ให้ลาก​ไปทางซ้าย​หรือขวา​จนกว่า​จะตรงกัน</translation>
    </message>
</context>
<context>
    <name>UpdateNotice</name>
    <message>
        <source>Version %1 is available.
It is downloaded and installed in a few minutes. The program then closes and starts again by itself.</source>
        <translation>มีเวอร์ชัน %1 แล้ว
จะดาวน์โหลด​และติดตั้ง​ภายใน​ไม่กี่นาที จากนั้น​โปรแกรม​จะปิด​และเริ่ม​ใหม่​โดยอัตโนมัติ</translation>
    </message>
    <message>
        <source>Downloading version %1…</source>
        <translation>กำลัง​ดาวน์โหลด​เวอร์ชัน %1…</translation>
    </message>
    <message>
        <source>The connection was lost. It is tried again…</source>
        <translation>การ​เชื่อมต่อ​ขาดหาย กำลัง​ลองใหม่…</translation>
    </message>
    <message>
        <source>%1 of %2 MB</source>
        <translation>%1 จาก %2 MB</translation>
    </message>
    <message>
        <source>Connecting…</source>
        <translation>กำลัง​เชื่อมต่อ…</translation>
    </message>
    <message>
        <source>Starting the installation…
The program closes now and starts again by itself.</source>
        <translation>กำลัง​เริ่ม​การติดตั้ง…
โปรแกรม​จะปิด​ในขณะนี้​และเริ่ม​ใหม่​โดยอัตโนมัติ</translation>
    </message>
    <message>
        <source>The update did not succeed.</source>
        <translation>การอัปเดต​ไม่สำเร็จ</translation>
    </message>
    <message>
        <source>This version goes on working as before.</source>
        <translation>เวอร์ชันนี้​ยังคง​ทำงาน​ได้​เหมือนเดิม</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>ภายหลัง</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>ยกเลิก</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>ปิด</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>ลองใหม่</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>อัปเดต</translation>
    </message>
</context>
</TS>
